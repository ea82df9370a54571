#include "support/RedirectedRegistry.h"

#include <windows.h>
#include <shlwapi.h>

#include <stdexcept>

namespace norvepa::test
{

namespace
{

void Require(LSTATUS status, const char* what)
{
    if (status != ERROR_SUCCESS)
    {
        throw std::runtime_error(std::string(what) + " failed: " + std::to_string(status));
    }
}

HKEY CreateKey(HKEY root, const std::wstring& path)
{
    HKEY key = nullptr;
    Require(RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
            "RegCreateKeyExW");
    return key;
}

std::wstring FreshName()
{
    static int count = 0;
    return L"Software\\NorvepaBl64x.Tests\\" + std::to_wstring(GetCurrentProcessId()) + L"-" +
           std::to_wstring(GetTickCount64()) + L"-" + std::to_wstring(++count);
}

} // namespace

RedirectedRegistry::RedirectedRegistry() : m_name(FreshName()), m_owned(true)
{
    Redirect();
}

RedirectedRegistry::RedirectedRegistry(const std::wstring& name) : m_name(name), m_owned(false)
{
    Redirect();
}

RedirectedRegistry::~RedirectedRegistry()
{
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    if (m_owned)
    {
        SHDeleteKeyW(HKEY_CURRENT_USER, m_name.c_str());
    }
}

void RedirectedRegistry::Redirect()
{
    const HKEY key = CreateKey(HKEY_CURRENT_USER, m_name);
    Require(RegOverridePredefKey(HKEY_LOCAL_MACHINE, key), "RegOverridePredefKey");
    RegCloseKey(key);
}

void SetMachineText(const std::wstring& key, const std::wstring& name, const std::wstring& text)
{
    SetMachineValue(key, name, REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void SetMachineValue(const std::wstring& key, const std::wstring& name, DWORD type, const void* data,
                     DWORD size)
{
    const HKEY opened = CreateKey(HKEY_LOCAL_MACHINE, key);
    const LSTATUS status =
        RegSetValueExW(opened, name.c_str(), 0, type, static_cast<const BYTE*>(data), size);
    RegCloseKey(opened);
    Require(status, "RegSetValueExW");
}

void DeleteMachineValue(const std::wstring& key, const std::wstring& name)
{
    Require(RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name.c_str()), "RegDeleteKeyValueW");
}

void DeleteMachineKey(const std::wstring& key)
{
    // MinGW-w64 declares its status as a DWORD.
    Require(static_cast<LSTATUS>(SHDeleteKeyW(HKEY_LOCAL_MACHINE, key.c_str())), "SHDeleteKeyW");
}

} // namespace norvepa::test
