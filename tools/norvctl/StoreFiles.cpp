#include "StoreFiles.h"

#include "FileFailure.h"
#include "OwnedFile.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace norvctl
{

namespace
{

constexpr std::chrono::seconds Patience(2);
constexpr std::chrono::milliseconds Pause(5);
constexpr DWORD LargestFile = 1U << 30U; // bytes

struct CloseSearch
{
    void operator()(void* search) const { FindClose(search); }
};

// A file that is to go is told by some systems as one in use, by others as one that can't be had; its folder
// isn't empty until it has gone.
bool MayPass(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_ACCESS_DENIED || error == ERROR_DIR_NOT_EMPTY;
}

bool IsGone(DWORD error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

// Tries until it is done or can't be; false leaves the reason in the system's last error.
bool WhenFree(const std::function<bool()>& attempt)
{
    const auto end = std::chrono::steady_clock::now() + Patience;
    while (!attempt())
    {
        const DWORD error = GetLastError();
        if (!MayPass(error) || std::chrono::steady_clock::now() >= end)
        {
            SetLastError(error);
            return false;
        }
        std::this_thread::sleep_for(Pause);
    }
    return true;
}

void Require(bool done, const std::wstring& path)
{
    if (!done)
    {
        throw FileFailure(path);
    }
}

// What is read-only can neither be replaced nor removed. What fails leaves it as it was.
void ReplaceOrRemove(const std::wstring& path, const std::function<bool()>& attempt)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool isReadOnly =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (isReadOnly)
    {
        SetFileAttributesW(path.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
    if (WhenFree(attempt))
    {
        return;
    }
    const DWORD error = GetLastError();
    if (isReadOnly)
    {
        SetFileAttributesW(path.c_str(), attributes);
    }
    throw FileFailure(path, error);
}

KeptFile ReadOpened(const OwnedFile& file, const std::wstring& path)
{
    FILE_BASIC_INFO information{};
    LARGE_INTEGER size{};
    Require(GetFileInformationByHandleEx(file.get(), FileBasicInfo, &information, sizeof information) &&
                GetFileSizeEx(file.get(), &size),
            path);
    if (size.QuadPart > LargestFile)
    {
        throw FileFailure(path, ERROR_FILE_TOO_LARGE);
    }
    KeptFile kept{information.FileAttributes & KeptAttributes,
                  static_cast<std::uint64_t>(information.LastWriteTime.QuadPart),
                  std::string(static_cast<std::size_t>(size.QuadPart), '\0')};
    DWORD read = 0;
    Require(ReadFile(file.get(), kept.bytes.data(), static_cast<DWORD>(kept.bytes.size()), &read, nullptr),
            path);
    kept.bytes.resize(read);
    return kept;
}

} // namespace

std::wstring PlaceBeside(const std::wstring& path)
{
    return path.substr(0, path.rfind(L'\\') + 1) + L"~norvctl-" + std::to_wstring(GetCurrentProcessId()) +
           L".new";
}

std::wstring AnyLengthPath(const std::wstring& path)
{
    constexpr std::wstring_view anyLength = L"\\\\?\\";
    constexpr std::wstring_view share = L"\\\\";
    if (path.starts_with(anyLength))
    {
        return path;
    }
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    while (full.ends_with(L'\\'))
    {
        full.pop_back();
    }
    return full.starts_with(share) ? L"\\\\?\\UNC" + full.substr(1) : std::wstring(anyLength) + full;
}

std::wstring PathBelow(const std::wstring& root, std::wstring_view name)
{
    return name.empty() ? root : root + L'\\' + std::wstring(name);
}

std::vector<FolderEntry> ListFolder(const std::wstring& path)
{
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
    {
        const DWORD error = GetLastError();
        return IsGone(error) ? std::vector<FolderEntry>{} : throw FileFailure(path, error);
    }
    const std::unique_ptr<void, CloseSearch> owner(search);
    std::vector<FolderEntry> entries;
    do
    {
        const std::wstring_view name(found.cFileName);
        const bool isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                            IsReparseTagNameSurrogate(found.dwReserved0);
        if (name != L"." && name != L"..")
        {
            entries.push_back({std::wstring(name), found.dwFileAttributes, isLink});
        }
    } while (FindNextFileW(search, &found));
    const DWORD error = GetLastError();
    return error == ERROR_NO_MORE_FILES ? entries : throw FileFailure(path, error);
}

std::optional<KeptFile> ReadKeptFile(const std::wstring& path)
{
    OwnedFile file;
    // Nobody may write it meanwhile.
    const bool isOpen = WhenFree([&] {
        file = OpenFile(path, {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING});
        return file != nullptr;
    });
    if (!isOpen && IsGone(GetLastError()))
    {
        return std::nullopt;
    }
    Require(isOpen, path);
    return ReadOpened(file, path);
}

void MakeFolder(const std::wstring& path, std::uint32_t attributes)
{
    Require(CreateDirectoryW(path.c_str(), nullptr), path);
    if (attributes != 0)
    {
        SetFileAttributesW(path.c_str(), attributes | FILE_ATTRIBUTE_DIRECTORY);
    }
}

void RemoveFolder(const std::wstring& path)
{
    for (const FolderEntry& entry : ListFolder(path))
    {
        if (IsLeftOver(entry.name))
        {
            DeleteFileW(PathBelow(path, entry.name).c_str());
        }
    }
    ReplaceOrRemove(path, [&] { return RemoveDirectoryW(path.c_str()) != FALSE; });
}

void RemoveFile(const std::wstring& path)
{
    ReplaceOrRemove(path, [&] { return DeleteFileW(path.c_str()) != FALSE; });
}

void PutFile(const std::wstring& path, const KeptFile& file)
{
    FileInTheMaking made(PlaceBeside(path));
    made.Write(file.bytes);
    made.SetAs(file);
    ReplaceOrRemove(path, [&] { return made.TryToBecome(path, Existing::IsReplaced); });
}

} // namespace norvctl
