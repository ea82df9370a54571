#include "frame/Arguments.h"
#include "store/BufferForms.h"
#include "store/PullWalk.h"
#include "store/norvxmlCatalogue.h"

namespace norvepa
{

namespace
{

bool ReadToRoot(PullReader& reader)
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type == XmlNodeType_Element)
        {
            return true;
        }
    }
    return false;
}

} // namespace

Result NorvXMLElementGetAttribute(const wchar_t* filePath, const wchar_t* attribute, std::wstring* value)
{
    if (IsMissing(filePath) || attribute == nullptr || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    value->clear();
    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }
    return ReadToRoot(reader) && XmlGetAttribute(reader, attribute, *value) ? PGSP_OK
                                                                            : PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLElementGetAttribute(const wchar_t* filePath, const wchar_t* attribute, wchar_t* buffer,
                                  std::uint32_t* length)
{
    return ReadIntoBuffer(
        [&](std::wstring* value) { return NorvXMLElementGetAttribute(filePath, attribute, value); }, buffer,
        length);
}

} // namespace norvepa
