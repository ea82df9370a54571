#include "StoreArchive.h"
#include "StoreRoots.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <array>
#include <fmt/format.h>
#include <fmt/xchar.h>
#include <memory>
#include <stdexcept>
#include <type_traits>

namespace norvctl
{

namespace
{

constexpr std::size_t LongestRoot = 126; // characters; the library doesn't believe a longer value

// A folder that nobody can make.
constexpr wchar_t Nowhere[] = L"?";

struct CloseKey
{
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseKey>;

void RequireKey(LSTATUS status)
{
    if (status != ERROR_SUCCESS)
    {
        throw std::runtime_error(fmt::format("the registry refuses a key of norvctl's own ({})", status));
    }
}

// Gone with the user's session, whatever happens.
Key MakeKey(HKEY parent, const std::wstring& path)
{
    HKEY key = nullptr;
    RequireKey(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr,
                               &key, nullptr));
    return Key(key);
}

void SetText(const Key& key, const wchar_t* name, const std::wstring& text)
{
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    RequireKey(RegSetValueExW(key.get(), name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), size));
}

// The listings and the index of identities outlive NorvepaBl64x_deinit; a question about a folder that can't
// be watched drops them.
void DropAllThatIsKept()
{
    NorvepaBl64x_deinit();
    std::array<wchar_t, MAX_PATH> device{};
    std::array<wchar_t, MAX_PATH> unit{};
    auto deviceLength = static_cast<std::uint32_t>(device.size());
    auto unitLength = static_cast<std::uint32_t>(unit.size());
    LogDeviceGetEnumByDeviceIdBL(Nowhere, 0, device.data(), &deviceLength, unit.data(), &unitLength);
}

} // namespace

OtherStore::OtherStore(const std::wstring& dataFolder)
    : m_key(fmt::format(L"Software\\norvctl-{}", GetCurrentProcessId()))
{
    if (dataFolder.size() > LongestRoot)
    {
        throw std::runtime_error(ToUtf8(dataFolder) + ": the path is too long for a store");
    }
    const std::wstring programFolder = PathOf(ProgramRoot);
    RegDeleteTreeW(HKEY_CURRENT_USER, m_key.c_str()); // of a process of the same number that has been ended
    try
    {
        const Key key = MakeKey(HKEY_CURRENT_USER, m_key);
        RequireKey(RegOverridePredefKey(HKEY_LOCAL_MACHINE, key.get()));
        SetRoots(Nowhere, programFolder);
        DropAllThatIsKept();
        SetRoots(dataFolder, programFolder);
    }
    catch (...)
    {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, m_key.c_str());
        throw;
    }
}

OtherStore::~OtherStore()
{
    try
    {
        SetRoots(Nowhere, {});
        DropAllThatIsKept();
    }
    catch (...) // NOLINT(bugprone-empty-catch) what is kept of a folder that goes is asked for by nobody
    {
    }
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, m_key.c_str());
}

// A program root that has no room in a value is the one that the system tells without it.
void OtherStore::SetRoots(const std::wstring& dataFolder, const std::wstring& programFolder) const
{
    const Key key = MakeKey(HKEY_LOCAL_MACHINE, LocationsKey);
    SetText(key, DataRoot.value, dataFolder);
    if (!programFolder.empty() && programFolder.size() <= LongestRoot)
    {
        SetText(key, ProgramRoot.value, programFolder);
    }
}

} // namespace norvctl
