#include "store/FileSteps.h"

#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"

#include <windows.h>

#include <cstdio>

namespace norvepa
{

namespace
{

// The extension is each step's own.
using ExtensionRule = void (*)(std::wstring& path);

// Neither path is escaped before both are known to be there.
FilePair EscapeBoth(const wchar_t* sourcePath, const wchar_t* destinationPath, ExtensionRule extend)
{
    if (IsMissing(sourcePath) || IsMissing(destinationPath))
    {
        return {PGSP_ERR_INVALID_PARAMETERS, {}, {}};
    }
    FilePair files{PGSP_OK, {}, {}};
    files.escaping = EscapePath(sourcePath, files.oldFile);
    if (files.escaping == PGSP_OK)
    {
        files.escaping = EscapePath(destinationPath, files.newFile);
    }
    if (files.escaping != PGSP_OK)
    {
        return {files.escaping, {}, {}};
    }
    extend(files.oldFile);
    extend(files.newFile);
    return files;
}

} // namespace

Deletion::Deletion(const wchar_t* filePath) : m_filePath(filePath), m_escaping(EscapePath(filePath, m_file))
{
    ExtendByEndRule(m_file);
}

Result Deletion::Run() const noexcept
{
    constexpr TraceSource source{"NorvXMLDeleteFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> filePath = %s", TraceToAnsi(m_filePath));
    if (m_escaping != PGSP_OK)
    {
        return m_escaping;
    }

    NORV_TRACE(source, TraceEntry, ">> _wremove = %s", TraceToAnsi(m_file.c_str()));
    if (_wremove(m_file.c_str()) != 0)
    {
        NORV_TRACE(source, TraceEntry, "PGSP_ERR_CANT_DELETE_FILE");
        return PGSP_ERR_CANT_DELETE_FILE;
    }
    return PGSP_OK;
}

Copying::Copying(const wchar_t* sourcePath, const wchar_t* destinationPath)
    : m_destinationPath(destinationPath),
      m_files(EscapeBoth(sourcePath, destinationPath, &ExtendByAnywhereRule))
{
}

Result Copying::Run() const noexcept
{
    constexpr TraceSource source{"NorvXMLCopyFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> destinationPath = %s", TraceToAnsi(m_destinationPath));
    if (m_files.escaping != PGSP_OK)
    {
        return m_files.escaping;
    }

    NORV_TRACE(source, TraceExit, " : CopyFile >> OldFile = %s, NewFile = %s",
               TraceToAnsi(m_files.oldFile.c_str()), TraceToAnsi(m_files.newFile.c_str()));
    if (!CopyFileW(m_files.oldFile.c_str(), m_files.newFile.c_str(), TRUE))
    {
        const auto error = static_cast<int>(GetLastError());
        NORV_TRACE(source, TraceExit, "ERROR CopyFile: %d", error);
        return PGSP_ERR_CANT_COPY_FILE;
    }
    return PGSP_OK;
}

Renaming::Renaming(const wchar_t* sourcePath, const wchar_t* destinationPath)
    : m_destinationPath(destinationPath), m_files(EscapeBoth(sourcePath, destinationPath, &ExtendByEndRule))
{
}

Result Renaming::Run() const noexcept
{
    constexpr TraceSource source{"NorvXMLRenameFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> destinationPath = %s", TraceToAnsi(m_destinationPath));
    if (m_files.escaping != PGSP_OK)
    {
        return m_files.escaping;
    }

    NORV_TRACE(source, TraceExit, " : RenameFile >> NewFile = %s", TraceToAnsi(m_files.newFile.c_str()));
    return _wrename(m_files.oldFile.c_str(), m_files.newFile.c_str()) == 0 ? PGSP_OK
                                                                           : PGSP_ERR_CANT_COPY_FILE;
}

Result NorvXMLDeleteFile(const wchar_t* filePath)
{
    return Deletion(filePath).Run();
}

Result NorvXMLCopyFile(const wchar_t* sourcePath, const wchar_t* destinationPath)
{
    return Copying(sourcePath, destinationPath).Run();
}

Result NorvXMLRenameFile(const wchar_t* sourcePath, const wchar_t* destinationPath)
{
    return Renaming(sourcePath, destinationPath).Run();
}

} // namespace norvepa
