#pragma once

// What a look at the store has found wrong, and what to do about it.

#include "Report.h"

#include <string>
#include <vector>

namespace norvctl
{

enum class Severity
{
    Warning, // nothing fails for it today
    Error
};

struct Finding
{
    Severity severity;
    std::string kind; // "log device", "folder"
    std::string name;
    std::string what;
    std::string advice;
};
using Findings = std::vector<Finding>;

// A line each; one array.
[[nodiscard]] std::string AsLines(const Findings& findings);
[[nodiscard]] Json AsArray(const Findings& findings);

} // namespace norvctl
