#pragma once

// In what the values of two files differ, and where.

#include "FileValues.h"
#include "ValueChanges.h"

#include <cstddef>
#include <string>
#include <vector>

namespace norvctl
{

enum class GroupKind
{
    Attribute,
    Section,
    Subdevice,
    Link
};

struct Difference
{
    GroupKind kind;
    std::string group;      // the section's or the subdevice's name; empty for attributes
    std::size_t occurrence; // of those of its name in the group: the first is 0
    ValueChange change;
};

// Names are compared as the library compares them, without regard to case; values exactly. A name that stands
// there several times is compared with itself in the order of the file.
[[nodiscard]] std::vector<Difference> DifferencesBetween(const FileValues& before, const FileValues& after);
[[nodiscard]] std::vector<Difference> DifferencesBetween(const ValueGroup& before, const ValueGroup& after,
                                                         GroupKind kind);

// "LocalSettings", "subdevices\Brenner 1"; for attributes "LogDevice", the element that has them.
[[nodiscard]] std::string WordsFor(const Difference& difference);

// A line a difference, below a line for each place: people see what belongs together.
[[nodiscard]] std::vector<std::string> AsTexts(const std::vector<Difference>& differences);
[[nodiscard]] Json AsArray(const std::vector<Difference>& differences);

} // namespace norvctl
