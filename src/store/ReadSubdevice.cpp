#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/PullWalk.h"
#include "store/norvxml.h"

namespace norvepa
{

namespace
{

// On to the next `Subdevice` of this name. False when the file has ended.
bool SeekSubdevice(PullReader& reader, std::wstring_view subdevName)
{
    std::wstring name;
    while (SeekSection(reader, L"Subdevice"))
    {
        if (XmlGetAttribute(reader, L"SubdevName", name) && EqualNoCase(name, subdevName))
        {
            return true;
        }
    }
    return false;
}

// Entries of a subdevice are told by their `Name` alone. The search doesn't stop where a `Value` is missing.
bool SeekSubdeviceValue(PullReader& reader, std::wstring_view parameter, std::wstring& value)
{
    std::wstring name;
    while (XmlSeekChild(reader, L"Subdevice", L"Name"))
    {
        if (XmlReadText(reader, L"Name", name) && EqualNoCase(name, parameter) &&
            ReadChildText(reader, L"Subdevice", L"Value", value))
        {
            return true;
        }
    }
    return false;
}

} // namespace

Result NorvXMLGetSubdevValue(const wchar_t* filePath, const wchar_t* subdevName, const wchar_t* parameter,
                             std::wstring* value)
{
    if (IsMissing(filePath) || subdevName == nullptr || parameter == nullptr || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }

    value->clear();
    while (SeekSubdevice(reader, subdevName))
    {
        if (SeekSubdeviceValue(reader, parameter, *value))
        {
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLSubdevExists(const wchar_t* filePath, const wchar_t* subdevName)
{
    if (IsMissing(filePath) || subdevName == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }

    return SeekSubdevice(reader, subdevName) ? PGSP_OK : PGSP_ERR_PARAM_NOT_FOUND;
}

} // namespace norvepa
