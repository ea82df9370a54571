#pragma once

// The debugger: an output like the others, and the place where it is told what the client can't make.

#include <windows.h>

#include <string_view>

namespace norvepa
{

void WriteToDebugger(std::string_view line) noexcept;

void TellDebuggerOfMissing(const char* object, DWORD error) noexcept;

} // namespace norvepa
