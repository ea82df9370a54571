#include "store/PullWalk.h"

#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "frame/Text.h"

#include <array>

namespace norvepa
{

namespace
{

constexpr std::array<std::wstring_view, 3> EntryElements{L"Parameter", L"ParameterBool", L"ParameterInt"};

} // namespace

std::wstring_view SectionOrSpare(const wchar_t* section) noexcept
{
    return IsMissing(section) ? SpareSection : std::wstring_view(section);
}

Result StoreFile(const wchar_t* filePath, std::wstring& file)
{
    if (const Result result = EscapePath(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    ExtendByAnywhereRule(file);
    return PGSP_OK;
}

Result OpenStoreFile(const wchar_t* filePath, PullReader& reader)
{
    std::wstring file;
    if (const Result result = StoreFile(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    return reader.Open(file);
}

bool SeekSection(PullReader& reader, std::wstring_view section) noexcept
{
    while (XmlReaderActive(reader))
    {
        if (XmlSeekElement(reader, section))
        {
            return true;
        }
    }
    return false;
}

bool SeekEntry(PullReader& reader, std::wstring_view section, std::wstring_view parameter,
               std::wstring& entry)
{
    std::wstring name;
    while (XmlSeekOneOf(reader, section, EntryElements, entry))
    {
        if (ReadChildText(reader, entry, L"Name", name) && EqualNoCase(name, parameter))
        {
            return true;
        }
    }
    return false;
}

bool SeekEntryValue(PullReader& reader, std::wstring_view section, std::wstring_view parameter,
                    std::wstring& value)
{
    std::wstring entry;
    while (SeekEntry(reader, section, parameter, entry))
    {
        if (ReadChildText(reader, entry, L"Value", value))
        {
            return true;
        }
    }
    return false;
}

bool ReadChildText(PullReader& reader, std::wstring_view endName, std::wstring_view name, std::wstring& text)
{
    return XmlSeekChild(reader, endName, name) && XmlReadText(reader, name, text);
}

bool IsParamSectionOf(PullReader& reader, std::wstring_view param)
{
    std::wstring met;
    return XmlGetAttribute(reader, L"Param", met) && EqualNoCase(met, param);
}

bool SeekParamSection(PullReader& reader, std::wstring_view param)
{
    while (SeekSection(reader, L"ParamSection"))
    {
        if (IsParamSectionOf(reader, param))
        {
            return true;
        }
    }
    return false;
}

} // namespace norvepa
