#pragma once

// How the values of a log device or of a template are told, below the sections that they stand in.

#include "DeviceSheet.h"
#include "Report.h"

#include <vector>

namespace norvctl
{

// A line with a section's name, then its values, indented.
[[nodiscard]] Table AsTable(const std::vector<SheetSection>& sections);

// The same with what the catalogue says: a value that differs from its default is marked with "*".
[[nodiscard]] Table AsTableWithLimits(const std::vector<SheetSection>& sections);

// [{"name": ..., "values": [{"name": ..., "value": ...}]}]
[[nodiscard]] Json AsArray(const std::vector<SheetSection>& sections);

// The values with "allowed", "default", which may be null, and "differs" besides.
[[nodiscard]] Json AsArrayWithLimits(const std::vector<SheetSection>& sections);

} // namespace norvctl
