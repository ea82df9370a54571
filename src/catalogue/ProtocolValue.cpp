#include "catalogue/CatalogueWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/BufferForms.h"
#include "store/PullWalk.h"

namespace norvepa
{

namespace
{

// Forward in the file to a `ParamSection` of this `Param`, whatever is around it. Unlike SeekParamSection it
// gives up at an empty element.
bool SeekBeforeEmptyElement(PullReader& reader, std::wstring_view param)
{
    while (XmlSeekElement(reader, L"ParamSection"))
    {
        if (IsParamSectionOf(reader, param))
        {
            return true;
        }
    }
    return false;
}

// The value's section, the sub-parameter's right behind its start, then the sub-value's. Nothing here
// notices when it leaves a section.
bool SeekSubProfile(PullReader& reader, std::wstring_view value, std::wstring_view subParameter,
                    std::wstring_view subValue)
{
    while (SeekBeforeEmptyElement(reader, value))
    {
        if (!XmlSeekElement(reader, L"ParamSection"))
        {
            return false;
        }
        if (IsParamSectionOf(reader, subParameter))
        {
            return SeekBeforeEmptyElement(reader, subValue);
        }
    }
    return false;
}

} // namespace

Result NorvXMLProtocolGetValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* word,
                               std::wstring* value)
{
    if (IsMissing(filePath) || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    // The only catalogue query that adds the extension without looking.
    PullReader reader;
    if (const Result result = reader.Open(std::wstring(filePath) + L".xml"); result != PGSP_OK)
    {
        return result;
    }
    if (!SeekParamSection(reader, TextOrEmpty(parameter)))
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    std::wstring child;
    while (XmlNextChild(reader, L"ParamSection", child))
    {
        if (EqualNoCase(child, L"ValueCollection"))
        {
            return PGSP_ERR_PARAM_NOT_FOUND; // what follows are words of the values
        }
        if (EqualNoCase(child, TextOrEmpty(word)))
        {
            return XmlReadText(reader, child, *value) ? PGSP_OK : PGSP_ERR_PARAM_NOT_FOUND;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLProtocolGetValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* word,
                               wchar_t* buffer, std::uint32_t* length)
{
    return ReadIntoBuffer(
        [&](std::wstring* value) { return NorvXMLProtocolGetValue(filePath, parameter, word, value); },
        buffer, length);
}

Result NorvXMLSubProfileGetValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                                 const wchar_t* subParameter, const wchar_t* subValue, const wchar_t* name,
                                 std::wstring* text)
{
    if (IsMissing(filePath) || text == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PullReader reader;
    if (const Result result = reader.Open(CatalogueFile(filePath)); result != PGSP_OK)
    {
        return result;
    }
    while (SeekParamSection(reader, TextOrEmpty(parameter)))
    {
        if (SeekSubProfile(reader, TextOrEmpty(value), TextOrEmpty(subParameter), TextOrEmpty(subValue)) &&
            SeekEntryValue(reader, L"ParamSection", TextOrEmpty(name), *text))
        {
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLSubProfileGetValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                                 const wchar_t* subParameter, const wchar_t* subValue, const wchar_t* name,
                                 wchar_t* buffer, std::uint32_t* length)
{
    return ReadIntoBuffer(
        [&](std::wstring* text) {
            return NorvXMLSubProfileGetValue(filePath, parameter, value, subParameter, subValue, name, text);
        },
        buffer, length);
}

} // namespace norvepa
