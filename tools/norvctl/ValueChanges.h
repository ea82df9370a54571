#pragma once

// What a change of several values has changed.

#include "Reads.h"
#include "Report.h"

#include <optional>
#include <string>
#include <vector>

namespace norvctl
{

struct ValueChange
{
    std::string name;
    std::optional<std::string> before; // none: it wasn't there
    std::optional<std::string> after;  // none: it's gone
};

// A name that stands there several times is compared with itself in the order of the file.
[[nodiscard]] std::vector<ValueChange> ChangesBetween(std::vector<NameAndValue> before,
                                                      const std::vector<NameAndValue>& after);

// "name: old -> new", with "-" for a value that isn't there.
[[nodiscard]] std::vector<std::string> AsTexts(const std::vector<ValueChange>& changes);
[[nodiscard]] Json AsArray(const std::vector<ValueChange>& changes);

} // namespace norvctl
