#pragma once

// What --help prints of a command, made of what the tree says of it.

#include <CLI/CLI.hpp>
#include <cstddef>
#include <string>

namespace norvctl
{

// In lines of so many columns.
[[nodiscard]] std::string HelpOf(const CLI::App& command, std::size_t width);

// Has --help of a parser print that; ahead of its commands.
void UseHelp(CLI::App& app);

} // namespace norvctl
