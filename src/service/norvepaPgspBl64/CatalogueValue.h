#pragma once

// How the value of a parameter is found in a board or a template: where it always is looked for, or where the
// caller says.

#include "frame/ExportFrame.h"

#include <cstdint>
#include <span>
#include <string>

namespace norvepa
{

// An attribute of the root, or else a parameter of these sections, into the caller's buffer. Each place is
// asked with the caller's own capacity, and only when the one ahead of it had no answer that fits. The last
// result is the answer.
[[nodiscard]] Result ReadFromPlaces(const std::wstring& file, std::span<const wchar_t* const> sections,
                                    const wchar_t* parameter, wchar_t* value, std::uint32_t* length);

// A parameter at a path, traced for the export that asks.
[[nodiscard]] Result ReadFromPath(const ExportFrame& frame, const std::wstring& file, const wchar_t* path,
                                  const wchar_t* parameter, wchar_t* value, std::uint32_t* length);

} // namespace norvepa
