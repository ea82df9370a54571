#pragma once

// A library of texts, one in each language: opened as data, so that no code of it is run, and its numbered
// strings read.
//
// Callers may rely on: a library that can't be loaded converts to false and tells why; a number that it lacks
// is an empty text, whatever the library's tables hold.

#include "win/Handle.h"

#include <cstdint>
#include <string>

namespace norvepa
{

class ResourceLibrary
{
public:
    explicit ResourceLibrary(const std::wstring& path) noexcept;

    explicit operator bool() const noexcept { return static_cast<bool>(m_library); }

    // The system's error of a load that failed.
    [[nodiscard]] DWORD error() const noexcept { return m_error; }

    // Strings are numbered from 0 to 65535; no other number has one.
    [[nodiscard]] std::wstring TextOf(std::int64_t number) const;

private:
    win::Library m_library;
    DWORD m_error;
};

} // namespace norvepa
