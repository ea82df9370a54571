#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"

#include <windows.h>
#include <io.h>

namespace norvepa
{

namespace
{

constexpr DWORD SizeLimit = 10'000'000; // bytes

} // namespace

Result CheckFileSize(const std::wstring& path)
{
    constexpr TraceSource source{"CheckFileSize: ", "XML"};

    WIN32_FILE_ATTRIBUTE_DATA attributes = {};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &attributes))
    {
        NORV_TRACE(source, TraceExit, "Error: FILE_NOT_FOUND : %s", TraceToAnsi(path.c_str()));
        return PGSP_ERR_FILE_NOT_FOUND;
    }

    // The high half of the size is not looked at.
    if (attributes.nFileSizeLow > SizeLimit)
    {
        NORV_TRACE(source, TraceWarning, "Warning: FILE_TOO_LARGE : %s", TraceToAnsi(path.c_str()));
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    return PGSP_OK;
}

Result NorvXMLFileExists(const wchar_t* filePath)
{
    constexpr TraceSource source{"NorvXMLFileExists: ", "XML"};

    std::wstring file;
    if (const Result result = EscapePath(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    ExtendByEndRule(file);

    NORV_TRACE(source, TraceEntry, ">> filePath = %s", TraceToAnsi(filePath));
    return _waccess_s(file.c_str(), 0) == 0 ? PGSP_ERR_FILE_EXISTS : PGSP_ERR_FILE_NOT_FOUND;
}

} // namespace norvepa
