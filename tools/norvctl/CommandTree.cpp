#include "CommandTree.h"

#include <algorithm>
#include <fmt/format.h>
#include <sstream>

namespace norvctl
{

namespace
{

// Options may stand in a group, which is a command without a name.
void AddOptionsOf(const CLI::App& command, OptionList& options)
{
    for (const CLI::Option* option : command.get_options())
    {
        if (option != command.get_help_ptr() && !option->get_group().empty())
        {
            options.push_back(option);
        }
    }
    for (const CLI::App* group :
         command.get_subcommands([](const CLI::App* each) { return each->get_name().empty(); }))
    {
        AddOptionsOf(*group, options);
    }
}

OptionList AllOptionsOf(const CLI::App& command)
{
    OptionList options;
    AddOptionsOf(command, options);
    return options;
}

void AddVerbsOf(const CLI::App& command, CommandList& verbs)
{
    const CommandList commands = CommandsOf(command);
    if (commands.empty())
    {
        verbs.push_back(&command);
    }
    for (const CLI::App* each : commands)
    {
        AddVerbsOf(*each, verbs);
    }
}

// The type ahead of what the checks of its values add to it: "TEXT:{int,bool}".
std::string TypeOf(const CLI::Option& option)
{
    const std::string type = option.get_type_name();
    return type.substr(0, type.find(':'));
}

} // namespace

std::string PathOf(const CLI::App& command)
{
    const CLI::App* const parent = command.get_parent();
    return parent == nullptr ? command.get_name() : PathOf(*parent) + ' ' + command.get_name();
}

CommandList CommandsOf(const CLI::App& command)
{
    return command.get_subcommands(
        [](const CLI::App* each) { return !each->get_name().empty() && !each->get_group().empty(); });
}

CommandList VerbsOf(const CLI::App& command)
{
    CommandList verbs;
    AddVerbsOf(command, verbs);
    return verbs;
}

OptionList ArgumentsOf(const CLI::App& command)
{
    OptionList arguments = AllOptionsOf(command);
    std::erase_if(arguments, [](const CLI::Option* option) { return !option->get_positional(); });
    return arguments;
}

OptionList OptionsOf(const CLI::App& command)
{
    OptionList options;
    if (command.get_parent() != nullptr)
    {
        options = AllOptionsOf(command);
        std::erase_if(options, [](const CLI::Option* option) { return option->get_positional(); });
    }
    return options;
}

OptionList OptionsOfAll(const CLI::App& command)
{
    const CLI::App* root = &command;
    while (root->get_parent() != nullptr)
    {
        root = root->get_parent();
    }
    OptionList options = AllOptionsOf(*root);
    if (root->get_help_ptr() != nullptr)
    {
        options.push_back(root->get_help_ptr());
    }
    return options;
}

std::string WordOf(const CLI::Option& option)
{
    if (option.get_positional())
    {
        return option.get_name(true);
    }
    return option.get_items_expected_max() == 0 ? "" : TypeOf(option);
}

std::string NameOf(const CLI::Option& option)
{
    const auto& names = option.get_lnames();
    return names.empty() ? "-" + option.get_snames().front() : "--" + names.front();
}

std::string NamesOf(const CLI::Option& option)
{
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames())
    {
        names.push_back('-' + name);
    }
    for (const std::string& name : option.get_lnames())
    {
        names.push_back("--" + name);
    }
    return fmt::format("{}", fmt::join(names, ", "));
}

std::vector<std::string> ValuesOf(const CLI::Option& option)
{
    // A set tells of itself in its type alone: "TEXT:{int,bool,string}".
    const std::string type = option.get_type_name();
    const auto open = type.find(":{");
    const auto close = type.find('}', open);
    if (open == std::string::npos || close == std::string::npos)
    {
        return {};
    }
    return CLI::detail::split(type.substr(open + 2, close - open - 2), ',');
}

std::string UsageOf(const CLI::Option& option)
{
    const auto values = ValuesOf(option);
    const std::string word = values.empty() || option.get_positional()
                                 ? WordOf(option)
                                 : fmt::format("{}", fmt::join(values, "|"));
    if (option.get_positional())
    {
        return word;
    }
    return word.empty() ? NameOf(option) : NameOf(option) + ' ' + word;
}

std::string UsageOf(const CLI::App& command)
{
    std::string usage = PathOf(command);
    if (!CommandsOf(command).empty())
    {
        return usage + " COMMAND ...";
    }
    OptionList options = ArgumentsOf(command);
    const OptionList named = OptionsOf(command);
    options.insert(options.end(), named.begin(), named.end());
    for (const CLI::Option* option : options)
    {
        const std::string of = UsageOf(*option);
        usage += option->get_required() ? " " + of : " [" + of + "]";
    }
    return usage;
}

std::string DescriptionOf(const CLI::Option& option)
{
    std::string description = option.get_description();
    const auto values = ValuesOf(option);
    if (option.get_positional() && !values.empty())
    {
        description += fmt::format(": {}", fmt::join(values, ", "));
    }
    const std::string standard = option.get_default_str();
    return standard.empty() ? description : fmt::format("{} (without it {})", description, standard);
}

std::vector<std::string> ExamplesOf(const CLI::App& command)
{
    std::vector<std::string> examples;
    std::istringstream footer(command.get_footer());
    for (std::string line; std::getline(footer, line);)
    {
        if (line.starts_with("  "))
        {
            examples.push_back(line.substr(2));
        }
    }
    return examples;
}

} // namespace norvctl
