#include "win/NewFile.h"

#include "win/OpenWhenFree.h"

#include <algorithm>
#include <utility>

namespace norvepa::win
{

namespace
{

constexpr DWORD Everything = GENERIC_READ | GENERIC_WRITE | DELETE;

// That others may write lets the flush have a handle of its own; reading keeps everybody else out.
constexpr DWORD Alone = FILE_SHARE_WRITE;

bool IsThere(const wchar_t* path) noexcept
{
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

// A file that is to go goes when its last handle is closed, also by the end of the process.
void SetToGo(const Handle& file, BOOL goes) noexcept
{
    FILE_DISPOSITION_INFO disposition{static_cast<BOOLEAN>(goes)};
    SetFileInformationByHandle(file.get(), FileDispositionInfo, &disposition, sizeof disposition);
}

} // namespace

NewFile NewFile::CreateBeside(const std::wstring& path) noexcept
{
    NewFile made(path.c_str());
    if (IsThere(made.m_path))
    {
        SetLastError(ERROR_FILE_EXISTS);
        return made;
    }
    if (!made.FindPlaceBeside(path))
    {
        made.Take(Open(made.m_path, {Everything, Alone, CREATE_NEW}));
        return made;
    }
    // There may be one whose maker came to its end. Another maker is waited for: a file that is to go is told
    // by some systems as one in use, by others as one that can't be had.
    made.Take(WhenFree<Patience>(NumberOfFile(path), {ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}, [&] {
        return Open(made.m_beside.data(), {Everything, Alone, CREATE_ALWAYS});
    }));
    if (made && IsThere(made.m_path)) // which another has made meanwhile
    {
        made.m_handle = {};
        SetLastError(ERROR_FILE_EXISTS);
    }
    return made;
}

void NewFile::Take(Handle opened) noexcept
{
    m_handle = std::move(opened);
    if (m_handle)
    {
        SetToGo(m_handle, TRUE);
    }
}

// By the same name for all who make this file, so that they meet. It is longer by one: there may be no room
// for it, and then there is only the place itself.
bool NewFile::FindPlaceBeside(std::wstring_view path) noexcept
{
    constexpr std::wstring_view mark = L"~";
    constexpr std::wstring_view extension = L".new";

    const std::size_t folder = path.find_last_of(L'\\') + 1;
    const std::wstring_view stem = path.substr(folder, path.find_last_of(L'.') - folder);
    const std::size_t besideSize = folder + mark.size() + stem.size() + extension.size();
    if (std::max(path.size(), besideSize) >= m_beside.size()) // which MoveToItsPlace() holds the path in, too
    {
        return false;
    }
    auto end = m_beside.begin();
    for (const std::wstring_view part : {path.substr(0, folder), mark, stem, extension})
    {
        end = std::copy(part.begin(), part.end(), end);
    }
    *end = L'\0';
    return true;
}

NewFile NewFile::CreateOrEmpty(const std::wstring& path) noexcept
{
    NewFile made(path.c_str());
    made.Take(Open(made.m_path, {Everything, Alone, CREATE_ALWAYS}));
    return made;
}

bool NewFile::Write(std::string_view bytes) const noexcept
{
    DWORD written = 0;
    return WriteFile(m_handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
}

void NewFile::Empty() const noexcept
{
    FILE_END_OF_FILE_INFO end{};
    SetFileInformationByHandle(m_handle.get(), FileEndOfFileInfo, &end, sizeof end);
}

bool NewFile::Keep() noexcept
{
    return KeepAs({}); // by which nothing is changed
}

bool NewFile::KeepAs(const FILE_BASIC_INFO& other) noexcept
{
    if (!PutInItsPlace())
    {
        return false;
    }
    // Behind that: what is left beside the place mustn't be kept from being removed.
    FILE_BASIC_INFO information{};
    information.LastWriteTime = other.LastWriteTime;
    information.FileAttributes = other.FileAttributes;
    SetFileInformationByHandle(m_handle.get(), FileBasicInfo, &information, sizeof information);
    return true;
}

bool NewFile::PutInItsPlace() noexcept
{
    if (m_beside.front() == L'\0')
    {
        LetOthersInAndFlush();
        return true;
    }
    FlushFileBuffers(m_handle.get());
    return MoveToItsPlace();
}

// By the handle, which keeps everybody out until it has happened.
bool NewFile::MoveToItsPlace() noexcept
{
    struct
    {
        FILE_RENAME_INFO information;
        Beside room; // for the name, which begins in the one above
    } move{};
    const std::wstring_view name(m_path);
    move.information.FileNameLength = static_cast<DWORD>(name.size() * sizeof(wchar_t));
    std::copy(name.begin(), name.end(), move.information.FileName);

    SetToGo(m_handle, FALSE);
    if (SetFileInformationByHandle(m_handle.get(), FileRenameInfo, &move, sizeof move))
    {
        return true;
    }
    const DWORD error = GetLastError();
    SetToGo(m_handle, TRUE);
    SetLastError(error == ERROR_ALREADY_EXISTS ? DWORD{ERROR_FILE_EXISTS} : error);
    return false;
}

// A disk may take longer than anybody waits for a file in use: others are let in ahead of it.
void NewFile::LetOthersInAndFlush() noexcept
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    SetToGo(m_handle, FALSE);
    m_handle =
        Open(m_path, {GENERIC_WRITE, everybody, OPEN_EXISTING}); // ahead of the closing of the other one
    FlushFileBuffers(m_handle.get());
}

} // namespace norvepa::win
