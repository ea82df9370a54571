#include "store/FileSteps.h"

#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"
#include "win/OpenWhenFree.h"
#include "win/WholeFile.h"
#include "xml/CallImages.h"

#include <windows.h>

#include <mutex>

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

bool RemoveWhenFree(const std::wstring& file) noexcept
{
    const win::FileNumber number = win::NumberOfFile(file);
    const std::lock_guard turn(win::TurnAt(number));
    return win::WhenFree<win::Patience>(number, {ERROR_SHARING_VIOLATION},
                                        [&] { return DeleteFileW(file.c_str()) != FALSE; });
}

// The system has two codes for a file in use here.
bool MoveWhenFree(const std::wstring& from, const std::wstring& to, DWORD how) noexcept
{
    const win::FileNumber number = win::NumberOfFile(to);
    const std::lock_guard turn(win::TurnAt(number));
    return win::WhenFree<win::Patience>(number, {ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED},
                                        [&] { return MoveFileExW(from.c_str(), to.c_str(), how) != FALSE; });
}

// A file that is there and not kept from being removed: some systems replace what they wouldn't remove.
bool MayBeRemoved(const std::wstring& file) noexcept
{
    const DWORD attributes = GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) == 0;
}

// Whether it is this file that is in the way of its renaming.
bool IsHeld(const std::wstring& file) noexcept
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return !win::Open(file.c_str(), {DELETE, everybody, OPEN_EXISTING});
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
    ForgetImages();
    if (!RemoveWhenFree(m_file))
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
    ForgetImages();
    if (!win::CopyToNewFile(m_files.oldFile, m_files.newFile))
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
    ForgetImages();
    return MoveWhenFree(m_files.oldFile, m_files.newFile, 0) ? PGSP_OK : PGSP_ERR_CANT_COPY_FILE;
}

Replacing::Replacing(const wchar_t* sourcePath, const wchar_t* destinationPath)
    : m_destinationPath(destinationPath), m_files(EscapeBoth(sourcePath, destinationPath, &ExtendByEndRule))
{
}

// Told as the two steps that it does at once.
Result Replacing::Run() const noexcept
{
    constexpr TraceSource deletion{"NorvXMLDeleteFile: ", "XML"};
    constexpr TraceSource renaming{"NorvXMLRenameFile: ", "XML"};

    NORV_TRACE(deletion, TraceEntry, ">> filePath = %s", TraceToAnsi(m_destinationPath));
    if (m_files.escaping != PGSP_OK)
    {
        return m_files.escaping;
    }

    NORV_TRACE(deletion, TraceEntry, ">> _wremove = %s", TraceToAnsi(m_files.newFile.c_str()));
    ForgetImages();
    constexpr DWORD inItsPlace = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const bool replaced =
        MayBeRemoved(m_files.newFile) && MoveWhenFree(m_files.oldFile, m_files.newFile, inItsPlace);
    if (!replaced && (!MayBeRemoved(m_files.newFile) || !IsHeld(m_files.oldFile)))
    {
        NORV_TRACE(deletion, TraceEntry, "PGSP_ERR_CANT_DELETE_FILE");
        return PGSP_ERR_CANT_DELETE_FILE;
    }
    NORV_TRACE(renaming, TraceEntry, ">> destinationPath = %s", TraceToAnsi(m_destinationPath));
    NORV_TRACE(renaming, TraceExit, " : RenameFile >> NewFile = %s", TraceToAnsi(m_files.newFile.c_str()));
    return replaced ? PGSP_OK : PGSP_ERR_CANT_COPY_FILE;
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
