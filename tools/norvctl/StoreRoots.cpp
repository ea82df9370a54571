#include "StoreRoots.h"

#include <windows.h>
#include <shlobj.h>

#include <array>
#include <optional>

namespace norvctl
{

namespace
{

constexpr wchar_t FixedFolder[] = L"\\Marvolt\\Automation\\Corvane OAM";
constexpr DWORD ValueLimit = 255; // bytes; the library doesn't believe a longer value

std::optional<std::wstring> NamedByRegistry(const wchar_t* value)
{
    std::array<wchar_t, ValueLimit / sizeof(wchar_t) + 2> path{}; // what isn't text has no terminator
    DWORD size = ValueLimit;
    const LSTATUS status =
        RegGetValueW(HKEY_LOCAL_MACHINE, LocationsKey, value, RRF_RT_ANY, nullptr, path.data(), &size);
    return status == ERROR_SUCCESS ? std::optional<std::wstring>(path.data()) : std::nullopt;
}

std::wstring BelowShellFolder(int shellFolder)
{
    std::array<wchar_t, MAX_PATH> folder{};
    if (SHGetSpecialFolderPathW(nullptr, folder.data(), shellFolder, FALSE) == FALSE)
    {
        return {};
    }
    std::wstring path = std::wstring(folder.data()) + FixedFolder;
    return IsFolder(path) ? path : std::wstring{};
}

} // namespace

const StoreRoot DataRoot{"data", L"Corvane_Oam_Data", CSIDL_COMMON_APPDATA, "the common application data"};
const StoreRoot ProgramRoot{"program", L"Corvane_Oam", CSIDL_PROGRAM_FILES_COMMON,
                            "the common program files"};

std::wstring PathOf(const StoreRoot& root)
{
    // An empty one is believed, too.
    const std::optional<std::wstring> named = NamedByRegistry(root.value);
    return named ? *named : BelowShellFolder(root.shellFolder);
}

bool IsFolder(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace norvctl
