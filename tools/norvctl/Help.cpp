#include "Help.h"

#include "CommandTree.h"
#include "Console.h"
#include "ExitStatus.h"
#include "Paragraph.h"

#include <algorithm>
#include <fmt/format.h>
#include <vector>

namespace norvctl
{

namespace
{

constexpr std::size_t WidestLine = 100; // longer ones are hard to read

std::string Section(const char* heading, const std::vector<Definition>& definitions, std::size_t width)
{
    return definitions.empty() ? "" : fmt::format("\n{}:\n{}", heading, AsText(definitions, width));
}

std::vector<Definition> AsDefinitions(const CommandList& commands)
{
    std::vector<Definition> definitions;
    for (const CLI::App* command : commands)
    {
        definitions.push_back({command->get_name(), command->get_description()});
    }
    return definitions;
}

std::vector<Definition> AsDefinitions(const OptionList& options)
{
    std::vector<Definition> definitions;
    for (const CLI::Option* option : options)
    {
        const bool hasBoth = !option->get_snames().empty() && !option->get_lnames().empty();
        definitions.push_back({hasBoth ? NamesOf(*option) : UsageOf(*option), DescriptionOf(*option)});
    }
    return definitions;
}

std::vector<Definition> ExitStatusDefinitions()
{
    std::vector<Definition> definitions;
    for (const ExitStatus& status : ExitStatuses)
    {
        definitions.push_back({std::to_string(status.status), status.meaning});
    }
    return definitions;
}

std::string Examples(const CLI::App& command)
{
    const auto examples = ExamplesOf(command);
    if (examples.empty())
    {
        return "";
    }
    std::string text = examples.size() == 1 ? "\nExample:\n" : "\nExamples:\n";
    for (const std::string& example : examples)
    {
        text += "  " + example + '\n'; // never wrapped: it is there to be copied
    }
    return text;
}

std::string WhereToReadOn(const CLI::App& command, std::size_t width)
{
    if (CommandsOf(command).empty())
    {
        return "";
    }
    const std::string more = command.get_parent() == nullptr ? ", of all: norvctl reference" : "";
    return '\n' +
           Wrapped(fmt::format("More of a command: {} COMMAND --help{}", PathOf(command), more), width, 2) +
           '\n';
}

} // namespace

std::string HelpOf(const CLI::App& command, std::size_t width)
{
    const std::size_t columns = std::min(width, WidestLine);
    std::string text = Wrapped(fmt::format("{}: {}", PathOf(command), command.get_description()), columns, 2);
    text += "\n\nUsage:\n  " + Wrapped(UsageOf(command), columns, 4) + '\n';
    text += Section("Commands", AsDefinitions(CommandsOf(command)), columns);
    text += Section("Arguments", AsDefinitions(ArgumentsOf(command)), columns);
    text += Section("Options", AsDefinitions(OptionsOf(command)), columns);
    text += Section("Options of every command", AsDefinitions(OptionsOfAll(command)), columns);
    if (command.get_parent() == nullptr)
    {
        text += Section("Exit status", ExitStatusDefinitions(), columns);
    }
    return text + Examples(command) + WhereToReadOn(command, columns);
}

void UseHelp(CLI::App& app)
{
    app.formatter_fn([](const CLI::App* command, const std::string&, CLI::AppFormatMode) {
        return HelpOf(*command, ConsoleWidth());
    });
    app.set_help_flag("-h,--help", "print what a command does and takes, and end");
}

} // namespace norvctl
