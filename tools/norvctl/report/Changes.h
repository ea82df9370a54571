#pragma once

// What has become of a store since an older one, marked at each object and each value.

#include "report/Store.h"

#include <string>
#include <vector>

namespace norvctl::report
{

enum class Change
{
    None,
    Added,
    Changed,
    Removed
};

struct MarkedValue
{
    SheetValue present; // of one that is removed, as it was
    Change change = Change::None;
    std::string before; // of one that is changed
};

struct MarkedSection
{
    std::string name;
    std::vector<MarkedValue> values;
};

struct MarkedObject
{
    Object object; // without its sections: they are these
    Change change = Change::None;
    std::vector<MarkedSection> sections;
};
using MarkedObjects = std::vector<MarkedObject>;

// A store that is compared with none: nothing is marked.
[[nodiscard]] MarkedObjects Unmarked(Objects objects);

// Removed objects stand behind those of their kind, removed values at the end of their section. Kinds that
// the older store doesn't have aren't compared. A parameter that stands in a section several times is
// compared with itself in the order of the file.
[[nodiscard]] MarkedObjects MarkChanges(const Objects& before, Objects objects);

} // namespace norvctl::report
