#pragma once

// What the value lists of log devices and log names have in common: all of a file, and how a list goes out.

#include "frame/ExportFrame.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace norvepa
{

// All parameters of a file, name and value in turn. A name or value of 4096 characters or more ends the list
// like whatever else ends it; a file that isn't there has none.
[[nodiscard]] std::vector<std::wstring> EnumerateAll(const ExportFrame& frame, const std::wstring& file);

// Packs a list of values into the caller's buffer and leaves.
[[nodiscard]] Result ReturnValueList(const ExportFrame& frame, std::span<const std::wstring> values,
                                     wchar_t* buffer, std::uint32_t* length,
                                     TracePlace place = TracePlace::current());

} // namespace norvepa
