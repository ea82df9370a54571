#pragma once

// The kernel driver as an output. What it does with a line is its own affair.
//
// Callers must: hold the trace mutex.

#include "win/Handle.h"

#include <windows.h>

#include <string_view>

namespace norvepa
{

class TraceDriver
{
public:
    TraceDriver() noexcept; // opens it

    // Why it isn't open; 0 when it is.
    [[nodiscard]] DWORD error() const noexcept { return m_error; }

    void Write(std::string_view line) noexcept;

private:
    win::Handle m_driver;
    DWORD m_error;
};

// What is said of a driver that can't be opened.
[[nodiscard]] std::string_view DriverFault(DWORD error) noexcept;

} // namespace norvepa
