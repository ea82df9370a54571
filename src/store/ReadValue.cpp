#include "frame/Arguments.h"
#include "store/PullWalk.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"

#include <array>

namespace norvepa
{

namespace
{

constexpr std::wstring_view NoSection = L"NO_SECTION"; // no element of this name occurs

constexpr std::array<std::wstring_view, 8> SectionByIndex{
    L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings",
    NoSection,       L"Ndi",           L"UserInterface",   L"UserInterface64",
};

} // namespace

Result NorvXMLGetValue(const wchar_t* filePath, const wchar_t* section, const wchar_t* parameter,
                       std::wstring* value)
{
    constexpr TraceSource source{"NorvXMLGetValue: ", "XML"};

    if (IsMissing(filePath) || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        if (FAILED(reader.lastStatus()))
        {
            NORV_TRACE(source, TraceExit, "<< return lRet = %d", static_cast<int>(reader.lastStatus()));
        }
        return result;
    }

    value->clear();
    const std::wstring_view sectionName = SectionOrSpare(section);
    while (SeekSection(reader, sectionName))
    {
        if (SeekEntryValue(reader, sectionName, TextOrEmpty(parameter), *value))
        {
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLGetValueBuffer(const wchar_t* filePath, const wchar_t* section, const wchar_t* parameter,
                             wchar_t* buffer, std::uint32_t* length)
{
    if (filePath == nullptr || parameter == nullptr || buffer == nullptr || length == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    std::wstring value;
    if (const Result result = NorvXMLGetValue(filePath, section, parameter, &value); result != PGSP_OK)
    {
        return result;
    }
    return CopyOut(value, buffer, length);
}

Result NorvXMLGetValueBySectionIndex(const wchar_t* filePath, std::uint32_t sectionIndex,
                                     const wchar_t* parameter, std::wstring* elementName,
                                     std::wstring* sectionName)
{
    if (IsMissing(filePath) || elementName == nullptr || sectionName == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }

    elementName->clear();
    sectionName->clear();
    const std::wstring_view section =
        sectionIndex < SectionByIndex.size() ? SectionByIndex[sectionIndex] : NoSection;
    std::wstring entry;
    while (SeekSection(reader, section))
    {
        if (SeekEntry(reader, section, TextOrEmpty(parameter), entry))
        {
            *elementName = entry;
            *sectionName = section;
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

} // namespace norvepa
