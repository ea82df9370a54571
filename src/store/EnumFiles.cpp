#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "notify/directoryCache.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"

namespace norvepa
{

Result NorvXMLEnumFile(const wchar_t* folderPath, std::uint32_t index, std::wstring* name)
{
    return NorvXMLEnumFile(folderPath, GetDataFolder(), index, name);
}

Result NorvXMLEnumFile(const wchar_t* folderPath, const std::wstring& dataFolder, std::uint32_t index,
                       std::wstring* name)
{
    constexpr TraceSource source{"NorvXMLEnumFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> folderPath = %s, index = %d", TraceToAnsi(folderPath), index);
    if (IsMissing(folderPath) || name == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    // Escaping only tests the length here: a folder is listed by the name that it was given.
    std::wstring escaped;
    if (const Result result = EscapePath(folderPath, escaped); result != PGSP_OK)
    {
        return result;
    }

    // A folder that can't be read is one without files.
    std::shared_ptr<const DirectoryListing> listing;
    if (getDirectoryContent(folderPath, dataFolder, listing) != PGSP_OK || index >= listing->size())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }

    *name = (*listing)[index];
    NORV_TRACE(source, TraceExit, "<< file = %s", TraceToAnsi(name->c_str()));
    return PGSP_OK;
}

Result NorvXMLEnumFileName(const wchar_t* folderPath, std::uint32_t index, wchar_t* buffer,
                           std::uint32_t* length)
{
    if (folderPath == nullptr || buffer == nullptr || length == nullptr || *length == 0)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    std::wstring name;
    const Result result = NorvXMLEnumFile(folderPath, index, &name);
    if (result != PGSP_OK || name.empty())
    {
        return result;
    }
    return CopyOut(name, buffer, length);
}

} // namespace norvepa
