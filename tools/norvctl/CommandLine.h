#pragma once

// How far the words of a command line lead along the tree of commands.

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

struct GivenValue
{
    const CLI::Option* option;
    std::string value;
};

// A word that leads nowhere.
struct StrangeWord
{
    enum class Kind
    {
        Command,
        Option,
        Value, // of a set that it isn't in
        Excess // behind the last argument
    };

    Kind kind;
    std::string word;
    const CLI::Option* option = nullptr; // that it would be the value of
};

struct CommandLine
{
    const CLI::App* command;              // the last that is named
    std::vector<GivenValue> given{};      // in their order
    const CLI::Option* open = nullptr;    // an option whose value is still to come
    bool isPlain = false;                 // behind "--", where nothing is an option
    std::optional<StrangeWord> strange{}; // the first one; commands behind it aren't looked for

    // The argument that a next word would be; null when there is none.
    [[nodiscard]] const CLI::Option* NextArgument() const;

    // The last value that is given for a word as DEVICE; empty when there is none.
    [[nodiscard]] std::string ValueOf(std::string_view word) const;
};

[[nodiscard]] CommandLine Follow(const CLI::App& root, const std::vector<std::string>& words);

// The options that may stand behind a command, by their names with hyphens.
[[nodiscard]] std::vector<std::string> OptionNames(const CLI::App& command);

} // namespace norvctl
