#pragma once

// The existence tests of log devices, log names and catalogue files: is the file there, and may it be read or
// written.

#include "frame/ExportFrame.h"

#include <cstdint>
#include <string>

namespace norvepa
{

// What a caller may ask for: 0 existence, 2 writing, 4 reading, 6 both.
[[nodiscard]] bool IsAccessMode(std::int32_t flag) noexcept;

// Asks the system about a file, whose path has its extension. PGSP_OK, PGSP_ERR_FILE_NOT_FOUND,
// PGSP_ERR_ACCESS_DENIED, or PGSP_ERR_INVALID_PARAMETERS for a name that makes no path.
[[nodiscard]] Result TestAccess(const ExportFrame& frame, const std::wstring& file, std::int32_t flag,
                                TracePlace place = TracePlace::current());

} // namespace norvepa
