#pragma once

// What the store has for the arguments of a command line.

#include "CommandLine.h"

#include <string>
#include <vector>

namespace norvctl
{

// The values that may stand for a word as DEVICE or PARAMETER behind a command line; none when the store
// has none for it. Throws what a read throws.
[[nodiscard]] std::vector<std::string> ValuesFromStore(const std::string& word, const CommandLine& line);

// True for a word as PATH, of which the shell knows more.
[[nodiscard]] bool IsPathOfMachine(const std::string& word);

} // namespace norvctl
