#pragma once

// The reference of all commands, made of what their tree says of itself.

#include <CLI/CLI.hpp>
#include <string>

namespace norvctl
{

[[nodiscard]] std::string MarkdownReference(const CLI::App& root);

// A page for man, of macros that man and mandoc know.
[[nodiscard]] std::string ManReference(const CLI::App& root);

} // namespace norvctl
