#include "win/RegistryKey.h"

namespace norvepa::win
{

RegistryKey RegistryKey::OpenForReading(HKEY root, const wchar_t* path) noexcept
{
    HKEY key = nullptr;
    return RegistryKey(RegOpenKeyExW(root, path, 0, KEY_READ, &key) == ERROR_SUCCESS ? key : nullptr);
}

RegistryKey::~RegistryKey()
{
    if (m_key != nullptr)
    {
        RegCloseKey(m_key);
    }
}

std::optional<std::wstring> RegistryKey::ReadAnyAsText(const wchar_t* name, DWORD limit) const
{
    // Two characters more than the limit: a value that isn't text comes without a terminator.
    std::wstring text(limit / sizeof(wchar_t) + 2, L'\0');
    DWORD size = limit;
    if (RegGetValueW(m_key, nullptr, name, RRF_RT_ANY, nullptr, text.data(), &size) != ERROR_SUCCESS)
    {
        return std::nullopt;
    }

    text.resize(text.find(L'\0'));
    return text;
}

std::string_view RegistryKey::ReadAnsiText(const char* name, std::span<char> buffer) const noexcept
{
    DWORD type = REG_NONE;
    DWORD size = static_cast<DWORD>(buffer.size() - 1);
    const LSTATUS status =
        RegQueryValueExA(m_key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &size);
    if (status != ERROR_SUCCESS || type != REG_SZ)
    {
        return {};
    }

    buffer[size] = '\0';
    return buffer.data();
}

} // namespace norvepa::win
