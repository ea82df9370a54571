#pragma once

// What to say of a command line that is none.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace norvctl
{

// What is wrong with it, with the right word where one is near, and what to run for more; lines that end
// with a line feed. The parser has refused the words with this error.
[[nodiscard]] std::string ExplainMisuse(const CLI::App& root, const std::vector<std::string>& words,
                                        const CLI::ParseError& error);

} // namespace norvctl
