#include "report/Store.h"

#include "Device.h"
#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>
#include <set>
#include <stdexcept>
#include <utility>

namespace norvctl::report
{

namespace
{

using List = int32_t (*)(wchar_t* list, uint32_t* length);

std::vector<std::string> AllOf(const char* what, List list)
{
    return ReadTexts(what, list);
}

std::vector<std::string> CatalogueOf(const wchar_t* folder)
{
    return EnumerateTexts(ToUtf8(folder), [&](uint32_t index, wchar_t* name, uint32_t* length) {
        return PGSP_TemplateGetEnumNoPrefixBL(folder, index, name, length);
    });
}

// What can't be read is empty: a report tells of everything else all the same.
template <typename Read>
auto OrNothing(Read read) -> decltype(read())
{
    try
    {
        return read();
    }
    catch (const std::runtime_error&)
    {
        return {};
    }
}

SheetSection AsSection(const std::string& name, const std::vector<NameAndValue>& pairs)
{
    SheetSection section;
    section.name = name;
    for (const NameAndValue& pair : pairs)
    {
        section.values.push_back({pair.name, pair.value, {}, {}, false});
    }
    return section;
}

std::string ValueOf(const std::vector<NameAndValue>& pairs, std::string_view name)
{
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&](const NameAndValue& pair) {
        return EqualNoCase(ToWide(pair.name), ToWide(name));
    });
    return found == pairs.end() ? std::string() : found->value;
}

using Pairs = std::vector<NameAndValue>;

Pairs ValuesOfName(const std::string& name)
{
    const std::wstring wide = ToWide(name);
    return EnumeratePairs(name, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                    wchar_t* value, uint32_t* valueLength) {
        return LogNameGetEnumValueBL(wide.c_str(), index, parameter, parameterLength, value, valueLength);
    });
}

Pairs ValuesOfBoard(const std::string& board)
{
    const std::wstring wide = ToWide(board);
    return EnumeratePairs(board, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                     wchar_t* value, uint32_t* valueLength) {
        return PGSP_BoardGetEnumValueBL(wide.c_str(), index, parameter, parameterLength, value, valueLength);
    });
}

Pairs ValuesOfTemplate(const std::string& name)
{
    const std::wstring wide = ToWide(name);
    return EnumeratePairs(name, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                    wchar_t* value, uint32_t* valueLength) {
        return PGSP_DefDeviceGetEnumValueBL(wide.c_str(), index, parameter, parameterLength, value,
                                            valueLength);
    });
}

// The parameters with their defaults; with a parameter the words that limit it.
Pairs ValuesOfProtocol(const std::string& protocol, const std::string& parameter)
{
    const std::wstring wide = ToWide(protocol);
    const std::wstring of = ToWide(parameter);
    return EnumeratePairs(protocol, [&](uint32_t index, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                                        uint32_t* valueLength) {
        return PGSP_ProtocolGetEnumValueBL(wide.c_str(), of.c_str(), L"", L"", L"", index, name, nameLength,
                                           value, valueLength);
    });
}

// "type int, min 10, max 126"; what isn't a limit is left out.
std::string LimitsOf(const std::string& protocol, const std::string& parameter)
{
    static const std::set<std::string> NoLimits{"default", "ParamDesc", "section", "DisplayMultiplier"};
    std::string limits;
    for (const NameAndValue& pair : OrNothing([&] { return ValuesOfProtocol(protocol, parameter); }))
    {
        if (NoLimits.count(pair.name) == 0)
        {
            limits += fmt::format("{}{} {}", limits.empty() ? "" : ", ", pair.name, pair.value);
        }
    }
    return limits;
}

Object ReadName(const std::string& name)
{
    Object object;
    object.kind = Kind::LogName;
    object.name = name;
    const Pairs values = OrNothing([&] { return ValuesOfName(name); });
    object.device = ValueOf(values, "LogDevice");
    object.type = ValueOf(values, "CP_TYPE");
    object.sections.push_back(AsSection("", values));
    return object;
}

Object ReadDeviceHead(const std::string& name)
{
    Object object;
    object.kind = Kind::LogDevice;
    object.name = name;
    object.type = ReadDevice(name, "CP_TYPE").value;
    object.board = ReadDevice(name, "DeviceID").value;
    object.unit = ReadDevice(name, "Unit").value;
    object.sections = OrNothing([&] { return SectionsOfDevice(name); });
    return object;
}

Object ReadBoard(const std::string& name)
{
    Object object;
    object.kind = Kind::Board;
    object.name = name;
    const Pairs values = OrNothing([&] { return ValuesOfBoard(name); });
    object.type = ValueOf(values, "CP_TYPE");
    object.board = name;
    object.sections.push_back(AsSection("", values));
    const Pairs defaults = OrNothing([&] { return ValuesOfBoard(name + "\\ConstraintsWithDefault"); });
    if (!defaults.empty())
    {
        object.sections.push_back(AsSection("Defaults of parameters", defaults));
    }
    return object;
}

Object ReadProtocol(const std::string& name)
{
    Object object;
    object.kind = Kind::Protocol;
    object.name = name;
    object.type = name;
    SheetSection section = AsSection("", OrNothing([&] { return ValuesOfProtocol(name, ""); }));
    for (SheetValue& value : section.values)
    {
        value.allowed = LimitsOf(name, value.name);
    }
    object.sections.push_back(std::move(section));
    return object;
}

Object ReadTemplate(const std::string& name)
{
    Object object;
    object.kind = Kind::Template;
    object.name = name;
    const Pairs values = OrNothing([&] { return ValuesOfTemplate(name); });
    object.type = ValueOf(values, "CP_TYPE");
    object.board = ValueOf(values, "DeviceId");
    object.sections.push_back(AsSection("", values));
    return object;
}

// Reads objects one by one and tells how far it is.
class Reader
{
public:
    explicit Reader(Progress& progress) : m_progress(progress) {}

    void Read(const std::vector<std::string>& names, const std::function<Object(const std::string&)>& read)
    {
        for (const std::string& name : names)
        {
            m_progress.Tell(m_objects.size(), name);
            m_objects.push_back(read(name));
        }
    }

    [[nodiscard]] Objects Take() { return std::move(m_objects); }

private:
    Progress& m_progress;
    Objects m_objects;
};

std::vector<std::string> NamesOfDevices()
{
    return AllOf("the log devices", &PGSP_GetLogDeviceListBL);
}

std::vector<std::string> NamesOfNames()
{
    return AllOf("the log names", &PGSP_GetLogNameListBL);
}

// The visible ones; the list of all has the hidden ones, too.
std::set<std::string> VisibleDevices()
{
    const std::vector<std::string> names = OrNothing([] {
        return EnumerateTexts("the log devices", [](uint32_t index, wchar_t* name, uint32_t* length) {
            return LogDeviceGetEnumBL(nullptr, index, name, length);
        });
    });
    return {names.begin(), names.end()};
}

} // namespace

const std::array<KindWords, 5> AllKinds{{{Kind::LogName, "log name", "Log names", "log-name"},
                                         {Kind::LogDevice, "log device", "Log devices", "log-device"},
                                         {Kind::Board, "board", "Boards", "board"},
                                         {Kind::Protocol, "protocol", "Protocols", "protocol"},
                                         {Kind::Template, "template", "Templates", "template"}}};

const KindWords& WordsOf(Kind kind)
{
    return AllKinds.at(static_cast<std::size_t>(kind));
}

Objects ReadStore(Progress& progress)
{
    CatalogueLimits limits;
    const std::set<std::string> visible = VisibleDevices();
    Reader reader(progress);
    reader.Read(OrNothing(&NamesOfNames), &ReadName); // findings tell what is missing as a whole
    reader.Read(OrNothing(&NamesOfDevices), [&](const std::string& name) {
        Object device = ReadDeviceHead(name);
        device.isHidden = visible.count(name) == 0;
        OrNothing([&] {
            AddLimits(name, limits, device.sections);
            return true;
        });
        return device;
    });
    reader.Read(OrNothing([] { return CatalogueOf(L"Boards"); }), &ReadBoard);
    reader.Read(OrNothing([] { return CatalogueOf(L"Protocols"); }), &ReadProtocol);
    reader.Read(OrNothing([] { return CatalogueOf(L"DefaultLogDevices"); }), &ReadTemplate);
    return reader.Take();
}

Objects ReadData(Progress& progress)
{
    Reader reader(progress);
    reader.Read(NamesOfNames(), &ReadName);
    reader.Read(NamesOfDevices(), &ReadDeviceHead);
    return reader.Take();
}

} // namespace norvctl::report
