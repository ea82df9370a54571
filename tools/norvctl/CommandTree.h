#pragma once

// What the tree of commands says of itself: the one source of help, reference and completion, and of the
// answers to words that it doesn't know.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace norvctl
{

using CommandList = std::vector<const CLI::App*>;
using OptionList = std::vector<const CLI::Option*>;

// The words that lead to a command, "norvctl device edit begin".
[[nodiscard]] std::string PathOf(const CLI::App& command);

// The commands below one that are shown to people, in the order in which they were added.
[[nodiscard]] CommandList CommandsOf(const CLI::App& command);

// All verbs below a command, or itself if it is one: a verb has no commands below it.
[[nodiscard]] CommandList VerbsOf(const CLI::App& command);

// What is told by its position, in that order, and by a name. The options that all commands have in common
// are those of the root, and help.
[[nodiscard]] OptionList ArgumentsOf(const CLI::App& command);
[[nodiscard]] OptionList OptionsOf(const CLI::App& command);
[[nodiscard]] OptionList OptionsOfAll(const CLI::App& command);

// The word that stands for a value and tells what it is, "DEVICE"; empty for a flag.
[[nodiscard]] std::string WordOf(const CLI::Option& option);

// "--section" or, all of them, "-h, --help".
[[nodiscard]] std::string NameOf(const CLI::Option& option);
[[nodiscard]] std::string NamesOf(const CLI::Option& option);

// The values to choose from; none when any value will do.
[[nodiscard]] std::vector<std::string> ValuesOf(const CLI::Option& option);

// How an option is typed, "--type int|bool|string"; how a command is, "norvctl device get DEVICE
// [PARAMETER]".
[[nodiscard]] std::string UsageOf(const CLI::Option& option);
[[nodiscard]] std::string UsageOf(const CLI::App& command);

// What it is for, and the value that it has without being given.
[[nodiscard]] std::string DescriptionOf(const CLI::Option& option);

// The command lines that ShowExample has given it.
[[nodiscard]] std::vector<std::string> ExamplesOf(const CLI::App& command);

} // namespace norvctl
