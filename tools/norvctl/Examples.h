#pragma once

// The examples of the verbs, side by side: command lines that run as they stand on the sample plant. A
// verb may show its own instead, by ShowExample.

#include <CLI/CLI.hpp>

namespace norvctl
{

// Throws when there is none of the verbs.
void ShowExamples(CLI::App& app);

} // namespace norvctl
