#include "store/EveryRead.h"

#include "store/ReadScene.h"
#include "support/OutputBuffer.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace norvepa::test
{

namespace
{

const std::wstring Untouched(Before);

Outcome CallGetValue(const wchar_t* filePath)
{
    std::wstring value(Untouched);
    const Result result = NorvXMLGetValue(filePath, L"DeviceHeader", L"Unit", &value);
    return {result, {value}};
}

Outcome CallGetValueBuffer(const wchar_t* filePath)
{
    OutputBuffer buffer(100);
    const Result result =
        NorvXMLGetValueBuffer(filePath, L"DeviceHeader", L"Unit", buffer.data(), &buffer.length);
    return {result, {buffer.isUntouched() ? Untouched : buffer.text()}};
}

Outcome CallGetValueRaw(const wchar_t* filePath)
{
    std::wstring value(Untouched);
    const Result result = NorvXMLGetValueRaw(filePath, L"DeviceHeader", L"Unit", &value);
    return {result, {value}};
}

Outcome CallGetSubdevValue(const wchar_t* filePath)
{
    std::wstring value(Untouched);
    const Result result = NorvXMLGetSubdevValue(filePath, L"Pumpe", L"a", &value);
    return {result, {value}};
}

Outcome CallSubdevExists(const wchar_t* filePath)
{
    return {NorvXMLSubdevExists(filePath, L"Pumpe"), {}};
}

Outcome CallGetValueBySectionIndex(const wchar_t* filePath)
{
    std::wstring element(Untouched);
    std::wstring section(Untouched);
    const Result result = NorvXMLGetValueBySectionIndex(filePath, 0, L"Unit", &element, &section);
    return {result, {element, section}};
}

Outcome CallGetAssemblyLink(const wchar_t* filePath)
{
    std::vector<std::wstring> texts(4, Untouched);
    const Result result =
        NorvXMLGetAssemblyLink(filePath, L"DescText", &texts[0], &texts[1], &texts[2], &texts[3], 0);
    return {result, texts};
}

Outcome CallGetParameterAssemblyLink(const wchar_t* filePath)
{
    std::vector<std::wstring> texts(3, Untouched);
    const Result result =
        NorvXMLGetParameterAssemblyLink(filePath, L"PropSheet", &texts[0], &texts[1], &texts[2], 0);
    return {result, texts};
}

Outcome CallEnumNdi(const wchar_t* filePath)
{
    std::wstring name(Untouched);
    std::wstring value(Untouched);
    const Result result = NorvXMLEnumNdi(filePath, 0, &name, &value, 0);
    return {result, {name, value}};
}

Outcome CallGetParameterData(const wchar_t* filePath)
{
    std::wstring value(Untouched);
    const Result result = NorvXMLGetParameterData(filePath, L"Unit", &value);
    return {result, {value}};
}

Outcome CallEnumParameterData(const wchar_t* filePath)
{
    std::wstring name(Untouched);
    std::wstring value(Untouched);
    const Result result = NorvXMLEnumParameterData(filePath, 1, &name, &value);
    return {result, {name, value}};
}

constexpr const char* WithoutEscaping = "GetParameterAssemblyLink";

} // namespace

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    *out << outcome.result;
    for (const std::wstring& output : outcome.outputs)
    {
        *out << " \"" << ToUtf8(output) << '"';
    }
}

Outcome Read::Refused(Result result) const
{
    return {result, std::vector<std::wstring>(found.outputs.size(), Untouched)};
}

void PrintTo(const Read& read, std::ostream* out)
{
    *out << read.name;
}

const std::vector<Read>& PullReads()
{
    constexpr Result none = PGSP_ERR_PARAM_NOT_FOUND;
    constexpr Result missing = PGSP_ERR_CANT_LOAD_XML_FILE;
    static const std::vector<Read> reads{
        {"GetValue", CallGetValue, {PGSP_OK, {L"17"}}, {none, {L""}}, missing},
        {"GetValueBuffer", CallGetValueBuffer, {PGSP_OK, {L"17"}}, {none, {Untouched}}, missing},
        {"GetValueRaw", CallGetValueRaw, {PGSP_OK, {L"17"}}, {none, {L""}}, missing},
        {"GetSubdevValue", CallGetSubdevValue, {PGSP_OK, {L"Größe"}}, {none, {L""}}, missing},
        {"SubdevExists", CallSubdevExists, {PGSP_OK, {}}, {none, {}}, missing},
        {"GetValueBySectionIndex",
         CallGetValueBySectionIndex,
         {PGSP_OK, {L"ParameterInt", L"DeviceHeader"}},
         {none, {L"", L""}},
         missing},
        {"GetAssemblyLink",
         CallGetAssemblyLink,
         {PGSP_OK, {L"Texte.dll", L"%commonpath%", L"4020", L"Auental.Texte"}},
         {none, {L"", L"", L"", L""}},
         missing},
        {WithoutEscaping,
         CallGetParameterAssemblyLink,
         {PGSP_OK, {L"Seiten.dll", L"%commonpath%", L"ShowPage"}},
         {none, {L"", L"", L""}},
         missing},
    };
    return reads;
}

const std::vector<Read>& DocumentReads()
{
    constexpr Result none = PGSP_ERR_PARAM_NOT_FOUND;
    constexpr Result end = PGSP_ERR_NO_MORE_ITEMS;
    constexpr Result missing = PGSP_ERR_FILE_NOT_FOUND;
    static const std::vector<Read> reads{
        {"EnumNdi",
         CallEnumNdi,
         {PGSP_OK, {L"PropSheet", L"Seiten.dll,ShowPage"}},
         {end, {Untouched, Untouched}},
         missing},
        {"GetParameterData", CallGetParameterData, {PGSP_OK, {L"17"}}, {none, {Untouched}}, missing},
        {"EnumParameterData",
         CallEnumParameterData,
         {PGSP_OK, {L"a", L"Größe"}},
         {none, {Untouched, Untouched}},
         missing},
    };
    return reads;
}

const std::vector<Read>& EveryRead()
{
    static const std::vector<Read> reads = [] {
        std::vector<Read> all = PullReads();
        all.insert(all.end(), DocumentReads().begin(), DocumentReads().end());
        return all;
    }();
    return reads;
}

const std::vector<Read>& EscapingReads()
{
    static const std::vector<Read> reads = [] {
        std::vector<Read> some;
        std::ranges::copy_if(EveryRead(), std::back_inserter(some),
                             [](const Read& read) { return std::strcmp(read.name, WithoutEscaping) != 0; });
        return some;
    }();
    return reads;
}

std::string NameOf(const testing::TestParamInfo<Read>& info)
{
    return info.param.name;
}

XmlContent ReadableContent()
{
    return XmlContent()
        .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"17"))
        .Element(L"Bindings", XmlContent().Subdevice(L"Pumpe", XmlContent().Text(L"a", L"Größe")))
        .Element(L"UserInterface64", XmlContent()
                                         .Resource({.name = L"DescText",
                                                    .assembly = L"Texte.dll",
                                                    .path = L"%commonpath%",
                                                    .resourceId = L"4020",
                                                    .nameSpace = L"Auental.Texte"})
                                         .ParameterAssemblyLink({.name = L"PropSheet",
                                                                 .assembly = L"Seiten.dll",
                                                                 .path = L"%commonpath%",
                                                                 .function = L"ShowPage"}));
}

} // namespace norvepa::test
