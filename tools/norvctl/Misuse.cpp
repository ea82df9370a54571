#include "Misuse.h"

#include "CommandLine.h"
#include "CommandTree.h"
#include "Nearest.h"

#include <algorithm>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

std::vector<std::string> CommandNames(const CLI::App& command)
{
    std::vector<std::string> names;
    for (const CLI::App* each : CommandsOf(command))
    {
        names.push_back(each->get_name());
    }
    return names;
}

// The words behind "norvctl", with a blank at the end when there are any.
std::string WordsOf(const CLI::App& command)
{
    return command.get_parent() == nullptr ? "" : PathOf(command).substr(sizeof "norvctl") + ' ';
}

std::string NoSuchCommand(const CLI::App& above, const std::string& word)
{
    const auto names = CommandNames(above);
    const auto nearest = NearestTo(word, names);
    return fmt::format("no such command: {}{}", WordsOf(above), word) +
           (nearest ? fmt::format("; did you mean {}?", *nearest)
                    : fmt::format("; there are {}", fmt::join(names, ", ")));
}

std::string NoSuchOption(const CLI::App& command, const std::string& word)
{
    const auto names = OptionNames(command);
    const std::string text = NoSuch("option", word, names);
    return NearestTo(word, names) ? text : text + "; values that begin with a hyphen go behind --";
}

// All that is allowed, what is nearest first.
std::string NoSuchValue(const CLI::Option& option, const std::string& value)
{
    auto values = ValuesOf(option);
    const auto nearest = NearestTo(value, values);
    std::stable_partition(values.begin(), values.end(),
                          [&](const std::string& each) { return each == nearest; });
    const std::string name = option.get_positional() ? WordOf(option) : NameOf(option);
    return fmt::format("no such {}: {}; allowed are {}", name, value, fmt::join(values, ", "));
}

std::string Explain(const CommandLine& line, const StrangeWord& strange, const std::string& otherwise)
{
    switch (strange.kind)
    {
    case StrangeWord::Kind::Command:
        return NoSuchCommand(*line.command, strange.word);
    case StrangeWord::Kind::Option:
        return NoSuchOption(*line.command, strange.word);
    case StrangeWord::Kind::Value:
        return NoSuchValue(*strange.option, strange.word);
    case StrangeWord::Kind::Excess:
        return "not expected: " + strange.word;
    }
    return otherwise;
}

std::string Explain(const CommandLine& line, const CLI::ParseError& error)
{
    if (line.strange)
    {
        return Explain(line, *line.strange, error.what());
    }
    const auto commands = CommandNames(*line.command);
    const std::string why = commands.empty()
                                ? std::string(error.what())
                                : fmt::format("a command is missing: {}", fmt::join(commands, ", "));
    const std::string words = WordsOf(*line.command);
    return words.empty() ? why : words.substr(0, words.size() - 1) + ": " + why;
}

} // namespace

std::string ExplainMisuse(const CLI::App& root, const std::vector<std::string>& words,
                          const CLI::ParseError& error)
{
    const CommandLine line = Follow(root, words);
    return fmt::format("norvctl: {}\nUsage: {}\nRun {} --help\n", Explain(line, error),
                       UsageOf(*line.command), PathOf(*line.command));
}

} // namespace norvctl
