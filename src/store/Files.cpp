#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/Renaming.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"

#include <windows.h>
#include <io.h>

#include <cstdio>

namespace norvepa
{

namespace
{

constexpr DWORD SizeLimit = 10'000'000; // bytes

// Neither path is escaped before both are known to be there. The extension is each operation's own.
Result EscapeBoth(const wchar_t* sourcePath, const wchar_t* destinationPath, std::wstring& oldFile,
                  std::wstring& newFile)
{
    if (IsMissing(sourcePath) || IsMissing(destinationPath))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    if (const Result result = EscapePath(sourcePath, oldFile); result != PGSP_OK)
    {
        return result;
    }
    return EscapePath(destinationPath, newFile);
}

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

Result NorvXMLDeleteFile(const wchar_t* filePath)
{
    constexpr TraceSource source{"NorvXMLDeleteFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> filePath = %s", TraceToAnsi(filePath));
    std::wstring file;
    if (const Result result = EscapePath(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    ExtendByEndRule(file);

    NORV_TRACE(source, TraceEntry, ">> _wremove = %s", TraceToAnsi(file.c_str()));
    if (_wremove(file.c_str()) != 0)
    {
        NORV_TRACE(source, TraceEntry, "PGSP_ERR_CANT_DELETE_FILE");
        return PGSP_ERR_CANT_DELETE_FILE;
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

Result NorvXMLCopyFile(const wchar_t* sourcePath, const wchar_t* destinationPath)
{
    constexpr TraceSource source{"NorvXMLCopyFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> destinationPath = %s", TraceToAnsi(destinationPath));
    std::wstring oldFile;
    std::wstring newFile;
    if (const Result result = EscapeBoth(sourcePath, destinationPath, oldFile, newFile); result != PGSP_OK)
    {
        return result;
    }
    ExtendByAnywhereRule(oldFile);
    ExtendByAnywhereRule(newFile);

    NORV_TRACE(source, TraceExit, " : CopyFile >> OldFile = %s, NewFile = %s", TraceToAnsi(oldFile.c_str()),
               TraceToAnsi(newFile.c_str()));
    if (!CopyFileW(oldFile.c_str(), newFile.c_str(), TRUE))
    {
        const auto error = static_cast<int>(GetLastError());
        NORV_TRACE(source, TraceExit, "ERROR CopyFile: %d", error);
        return PGSP_ERR_CANT_COPY_FILE;
    }
    return PGSP_OK;
}

Result NorvXMLRenameFile(const wchar_t* sourcePath, const wchar_t* destinationPath)
{
    return Renaming(sourcePath, destinationPath).Run();
}

Renaming::Renaming(const wchar_t* sourcePath, const wchar_t* destinationPath)
    : m_destinationPath(destinationPath),
      m_escaping(EscapeBoth(sourcePath, destinationPath, m_oldFile, m_newFile))
{
    ExtendByEndRule(m_oldFile);
    ExtendByEndRule(m_newFile);
}

Result Renaming::Run() const noexcept
{
    constexpr TraceSource source{"NorvXMLRenameFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> destinationPath = %s", TraceToAnsi(m_destinationPath));
    if (m_escaping != PGSP_OK)
    {
        return m_escaping;
    }

    NORV_TRACE(source, TraceExit, " : RenameFile >> NewFile = %s", TraceToAnsi(m_newFile.c_str()));
    return _wrename(m_oldFile.c_str(), m_newFile.c_str()) == 0 ? PGSP_OK : PGSP_ERR_CANT_COPY_FILE;
}

} // namespace norvepa
