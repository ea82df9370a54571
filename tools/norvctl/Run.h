#pragma once

// A run of norvctl, from its command line to its exit status.

#include <string>
#include <vector>

namespace norvctl
{

// The words behind the program's name, last one first. Answers on standard output, fails on standard error.
[[nodiscard]] int Run(const std::vector<std::string>& wordsReversed);

} // namespace norvctl
