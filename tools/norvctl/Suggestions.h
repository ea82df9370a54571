#pragma once

// The right name for one of a command line that the store doesn't have.

#include "Result.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace norvctl
{

// "; did you mean baudrate?" for a verb that has failed because something isn't there; empty when nothing
// that is there has a name as near, or when it failed for another reason. What there is, is read only now.
// The verb stands in the words behind "norvctl".
[[nodiscard]] std::string SuggestionFor(const CLI::App& root, const std::vector<std::string>& words,
                                        const Failure& failure);

// The same for a parameter of a log device that has just been set: one that neither its file nor the
// catalogue knew is taken, and may be a slip.
[[nodiscard]] std::string SuggestionForNew(const std::string& device, const std::string& parameter);

} // namespace norvctl
