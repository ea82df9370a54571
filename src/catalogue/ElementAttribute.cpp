#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "store/BufferForms.h"
#include "store/PullWalk.h"

namespace norvepa
{

namespace
{

// The file opened, the reader on its root element.
Result OpenAtRoot(const wchar_t* filePath, PullReader& reader)
{
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type == XmlNodeType_Element)
        {
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
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
    if (const Result result = OpenAtRoot(filePath, reader); result != PGSP_OK)
    {
        return result;
    }
    return XmlGetAttribute(reader, attribute, *value) ? PGSP_OK : PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLElementGetAttributes(const wchar_t* filePath, std::initializer_list<AttributeOutput> outputs)
{
    for (const AttributeOutput& output : outputs)
    {
        output.value->clear();
    }
    PullReader reader;
    if (const Result result = OpenAtRoot(filePath, reader); result != PGSP_OK)
    {
        return result;
    }
    for (const AttributeOutput& output : outputs)
    {
        static_cast<void>(XmlGetAttribute(reader, output.attribute, *output.value));
    }
    return PGSP_OK;
}

Result NorvXMLElementGetAttribute(const wchar_t* filePath, const wchar_t* attribute, wchar_t* buffer,
                                  std::uint32_t* length)
{
    return ReadIntoBuffer(
        [&](std::wstring* value) { return NorvXMLElementGetAttribute(filePath, attribute, value); }, buffer,
        length);
}

} // namespace norvepa
