#include "Questions.h"

#include "support/Answers.h"
#include "support/Eventually.h"

#include <filesystem>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

std::wstring DeviceValue(const Place& place, const std::wstring& device, const wchar_t* parameter)
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return place.library.LogDeviceGetValueBL(device.c_str(), parameter, value, length);
    });
}

std::wstring BoardValue(const Place& place, const std::wstring& board, const wchar_t* parameter)
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return place.library.PGSP_BoardGetValueBL(board.c_str(), parameter, value, length);
    });
}

// Index after index, until the object or the end. A call takes the index, the buffer and the length.
template <typename Enumeration>
std::wstring FindListed(const std::wstring& object, const Enumeration& enumeration)
{
    const std::wstring end = Failed(PGSP_ERR_NO_MORE_ITEMS);
    std::wstring name;
    for (std::uint32_t index = 0; name != object && name != end; ++index)
    {
        name = TextOf(
            [&](wchar_t* buffer, std::uint32_t* length) { return enumeration(index, buffer, length); });
    }
    return name == object ? Listed : NotListed;
}

std::wstring ListedUnderType(const Place& place, const std::wstring& device, const wchar_t* type)
{
    return FindListed(device, [&](std::uint32_t index, wchar_t* name, std::uint32_t* length) {
        return place.library.LogDeviceGetEnumBL(type, index, name, length);
    });
}

struct IndexEntry
{
    std::wstring name;
    std::wstring unit;
};

// The first one of an identity; no two objects have the same.
IndexEntry FindIdentity(const Place& place, const std::wstring& identity)
{
    IndexEntry entry;
    entry.name = TextOf([&](wchar_t* name, std::uint32_t* nameLength) {
        std::int32_t result = PGSP_OK;
        entry.unit = TextOf([&](wchar_t* unit, std::uint32_t* unitLength) {
            result = place.library.LogDeviceGetEnumByDeviceIdBL(identity.c_str(), 0, name, nameLength, unit,
                                                                unitLength);
            return result;
        });
        return result;
    });
    return entry;
}

// A file comes to the folder, or is renamed there.
void MakeIndexAnew(const Place& place)
{
    const std::wstring identity = L"Fremd";
    const IndexEntry former = FindIdentity(place, identity); // only what changes under a watch is noticed
    const std::wstring name = former.name == L"Fremd 1" ? L"Fremd 2" : L"Fremd 1";
    if (former.name.starts_with(identity))
    {
        std::filesystem::rename(place.roots.logDevice(former.name), place.roots.logDevice(name));
    }
    else
    {
        const XmlContent unit = XmlContent().Int(L"Unit", L"0");
        place.store.WriteDevice(name, XmlContent().Element(L"DeviceHeader", unit), identity);
    }
    if (!Eventually([&] { return FindIdentity(place, identity).name == name; }))
    {
        throw std::runtime_error("the index isn't made anew");
    }
}

} // namespace

std::wstring AskDeviceValue(const Place& place, const std::wstring& object)
{
    return DeviceValue(place, object, AskedParameter);
}

std::wstring AskDeviceId(const Place& place, const std::wstring& object)
{
    return DeviceValue(place, object, L"DeviceID");
}

std::wstring AskSubdeviceValue(const Place& place, const std::wstring& object)
{
    return DeviceValue(place, object + L"\\subdevices\\" + AskedSubdevice, AskedParameter);
}

std::wstring AskNameValue(const Place& place, const std::wstring& object)
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return place.library.LogNameGetValueBL(object.c_str(), AskedParameter, value, length);
    });
}

std::wstring AskBoardValue(const Place& place, const std::wstring& object)
{
    return BoardValue(place, object, AskedParameter);
}

std::wstring AskBoardId(const Place& place, const std::wstring& object)
{
    return BoardValue(place, object, L"DeviceID");
}

std::wstring AskBoardWord(const Place& place, const std::wstring& object)
{
    const std::wstring section = std::wstring(L"Constraints\\") + AskedParameter;
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return place.library.PGSP_BoardGetValueRawBL(object.c_str(), section.c_str(), L"default", value,
                                                     length);
    });
}

std::wstring AskProtocolWord(const Place& place, const std::wstring& object)
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return place.library.PGSP_ProtocolGetValueBL(object.c_str(), AskedParameter, nullptr, nullptr,
                                                     nullptr, L"default", value, length);
    });
}

std::wstring AskTemplateValue(const Place& place, const std::wstring& object)
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return place.library.PGSP_DefDeviceGetValueBL(object.c_str(), AskedParameter, value, length, 0);
    });
}

std::wstring AskDeviceShown(const Place& place, const std::wstring& object)
{
    return ListedUnderType(place, object, nullptr);
}

std::wstring AskDeviceShownByType(const Place& place, const std::wstring& object)
{
    return ListedUnderType(place, object, object.c_str());
}

std::wstring AskNameShown(const Place& place, const std::wstring& object)
{
    return FindListed(object, [&](std::uint32_t index, wchar_t* name, std::uint32_t* length) {
        return place.library.LogNameGetEnumBL(index, name, length);
    });
}

std::wstring TypeOf(const std::wstring& object, const std::wstring& type)
{
    return object + L" " + type;
}

std::wstring AskDeviceType(const Place& place, const std::wstring& object)
{
    for (const wchar_t* const type : {L"1", L"2"})
    {
        if (ListedUnderType(place, object, TypeOf(object, type).c_str()) == Listed)
        {
            return type;
        }
    }
    return NotListed;
}

std::wstring AskUnit(const Place& place, const std::wstring& object)
{
    MakeIndexAnew(place);
    const IndexEntry entry = FindIdentity(place, object);
    return entry.name == object ? entry.unit : NotListed;
}

} // namespace norvepa::test
