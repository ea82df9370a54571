#pragma once

// The last value of the first log device, asked of the library; and the same parameters where one would keep
// them instead.

#include "PlantStore.h"

#include <array>
#include <string>

namespace norvepa::bench
{

inline constexpr wchar_t RegistryKey[] = L"SOFTWARE\\Bench\\Anlage 0";

inline const std::wstring device = PlantStore::deviceName(0);
inline const std::wstring lastParameter = ParameterName(ParametersOfADevice - 1);
inline constexpr wchar_t LastValue[] = L"99"; // as the store is made

// In an INI file beside the store, whose path is answered, and in the registry.
[[nodiscard]] std::wstring IniFile(const PlantStore& store);
void FillRegistry();

// Throws at another value.
void Expect(const std::wstring& value, const wchar_t* expected);

// Both throw when the library refuses.
[[nodiscard]] std::wstring ReadFromLibrary();
void WriteToLibrary(const std::wstring& value);

// The next of two values, so that each write changes something.
class Alternating
{
public:
    const std::wstring& next()
    {
        m_second = !m_second;
        return m_second ? m_values[1] : m_values[0];
    }

private:
    std::array<std::wstring, 2> m_values{L"500", L"501"};
    bool m_second = false;
};

} // namespace norvepa::bench
