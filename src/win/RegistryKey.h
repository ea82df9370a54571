#pragma once

// A registry key, opened for reading.
//
// Callers may rely on: reads never fail loudly; a value that is missing, too long for its limit or of
// a type that wasn't asked for is nullopt. Nothing is ever written.

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace norvepa::win
{

class RegistryKey
{
public:
    [[nodiscard]] static RegistryKey OpenForReading(HKEY root, const wchar_t* path) noexcept;

    RegistryKey() noexcept = default;
    RegistryKey(RegistryKey&& other) noexcept : m_key(std::exchange(other.m_key, nullptr)) {}
    RegistryKey& operator=(RegistryKey&& other) noexcept
    {
        std::swap(m_key, other.m_key);
        return *this;
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey();

    explicit operator bool() const noexcept { return m_key != nullptr; }

    // A value of any type, its bytes taken as text up to the first terminator. `limit` is in bytes,
    // terminator included: a longer value counts as missing.
    [[nodiscard]] std::optional<std::wstring> ReadAnyAsText(const wchar_t* name, DWORD limit) const;

    // A value of type REG_SZ and nothing else, in the machine's ANSI code page; empty when there is none.
    // The value, terminator included, must leave one character of `buffer` free: it may lack its own.
    [[nodiscard]] std::string_view ReadAnsiText(const char* name, std::span<char> buffer) const noexcept;

private:
    explicit RegistryKey(HKEY key) noexcept : m_key(key) {}

    HKEY m_key = nullptr;
};

} // namespace norvepa::win
