#include "frame/StoreLocations.h"

#include "frame/CallScope.h"
#include "frame/PathText.h"
#include "win/RegistryKey.h"

#include <windows.h>
#include <shlobj.h>

#include <optional>
#include <sys/stat.h>

namespace norvepa
{

namespace
{

constexpr wchar_t LocationsKey[] = L"SOFTWARE\\Marvolt\\Shared Tools\\NorvDOS64";
constexpr wchar_t FixedFolder[] = L"Marvolt\\Automation\\Corvane OAM";
constexpr DWORD RootValueLimit = 255; // bytes, so that 126 characters and a terminator fit
constexpr std::wstring_view Extension = L".xml";

struct Root
{
    const wchar_t* registryValue;
    int shellFolder;
};

constexpr Root ProgramRoot{L"Corvane_Oam", CSIDL_PROGRAM_FILES_COMMON};
constexpr Root DataRoot{L"Corvane_Oam_Data", CSIDL_COMMON_APPDATA};

bool IsFolder(const std::wstring& path)
{
    struct _stat64 status = {};
    return _wstat64(path.c_str(), &status) == 0 && (status.st_mode & S_IFDIR) != 0;
}

std::wstring FixedFolderBelow(int shellFolder)
{
    wchar_t folder[MAX_PATH] = L"";
    if (SHGetSpecialFolderPathW(nullptr, folder, shellFolder, FALSE) != TRUE)
    {
        return {};
    }

    std::wstring path = JoinPath(folder, FixedFolder);
    return IsFolder(path) ? path : std::wstring{};
}

std::optional<std::wstring> ReadRoot(const win::RegistryKey& key, const Root& root)
{
    return key ? key.ReadAnyAsText(root.registryValue, RootValueLimit) : std::nullopt;
}

std::optional<std::wstring> RegisteredRoot(const Root& root)
{
    CallScope* const call = CallScope::Current();
    if (call == nullptr)
    {
        return ReadRoot(win::RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, LocationsKey), root);
    }
    if (!call->locationsKey)
    {
        call->locationsKey = win::RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, LocationsKey);
    }
    return ReadRoot(*call->locationsKey, root);
}

std::wstring FindRoot(const Root& root)
{
    if (auto path = RegisteredRoot(root))
    {
        return *std::move(path);
    }
    return FixedFolderBelow(root.shellFolder);
}

// The root once more, or as it was found when a walk first wanted it.
std::wstring FindRoot(const Root& root, std::optional<std::wstring> CallScope::*standing)
{
    CallScope* const call = CallScope::Current();
    if (call == nullptr || !call->rootsStand)
    {
        return FindRoot(root);
    }
    std::optional<std::wstring>& path = call->*standing;
    if (!path)
    {
        path = FindRoot(root);
    }
    return *path;
}

} // namespace

std::wstring GetDataFolder()
{
    return FindRoot(DataRoot, &CallScope::dataFolder);
}

std::wstring GetProgramFolder()
{
    return FindRoot(ProgramRoot, &CallScope::programFolder);
}

StandingRoots::StandingRoots() noexcept : m_call(CallScope::Current())
{
    if (m_call != nullptr && !m_call->rootsStand)
    {
        m_call->rootsStand = true;
        return;
    }
    m_call = nullptr; // there is no call, or a walk around this one has them stand
}

StandingRoots::~StandingRoots()
{
    if (m_call != nullptr)
    {
        m_call->rootsStand = false;
        m_call->dataFolder.reset();
        m_call->programFolder.reset();
    }
}

std::wstring JoinPath(std::wstring_view first, std::wstring_view second)
{
    std::wstring path;
    path.reserve(first.size() + 1 + second.size());
    path += first;
    if (!first.empty() && !second.empty())
    {
        path += L'\\';
    }
    path += second;
    return path;
}

std::wstring MakeStoreFolder(std::wstring_view root, std::wstring_view middle, std::wstring_view leaf)
{
    return JoinPath(JoinPath(root, middle), leaf);
}

void ExtendByAnywhereRule(std::wstring& path)
{
    if (path.find(Extension) == std::wstring::npos)
    {
        path += Extension;
    }
}

void ExtendByAnywhereRule(PathText& path)
{
    if (path.view().find(Extension) == std::wstring_view::npos)
    {
        path.Append(Extension);
    }
}

void ExtendByEndRule(std::wstring& path)
{
    const std::size_t first = path.find(Extension);
    if (first == std::wstring::npos || first + Extension.size() != path.size())
    {
        path += Extension;
    }
}

} // namespace norvepa
