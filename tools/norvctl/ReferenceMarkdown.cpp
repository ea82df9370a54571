#include "CommandTree.h"
#include "ExitStatus.h"
#include "Reference.h"
#include "ReferenceTexts.h"

#include <algorithm>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

std::string Code(std::string_view text)
{
    return fmt::format("`{}`", text);
}

// What would be markup in a line of text, and two hyphens, which would become a dash.
std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool isDash = text.substr(i).starts_with("--") && !escaped.ends_with('-');
        if (isDash || std::string_view("\\<>*_|`[]").find(text[i]) != std::string_view::npos)
        {
            escaped += '\\';
        }
        escaped += text[i];
    }
    return escaped;
}

std::string AsSentence(std::string text)
{
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z')
    {
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    }
    return Escaped(text) + '.';
}

// GitHub's anchor of a heading.
std::string AnchorOf(const CLI::App& verb)
{
    std::string anchor = PathOf(verb);
    std::replace(anchor.begin(), anchor.end(), ' ', '-');
    return anchor;
}

std::string ListOf(const OptionList& options)
{
    std::string list;
    for (const CLI::Option* option : options)
    {
        const bool isOfAll = !option->get_snames().empty();
        list += fmt::format("- {}: {}\n", Code(isOfAll ? NamesOf(*option) : UsageOf(*option)),
                            Escaped(DescriptionOf(*option)));
    }
    return list.empty() ? "" : '\n' + list;
}

std::string CodeBlock(const std::vector<std::string>& lines)
{
    return lines.empty() ? "" : fmt::format("\n```\n{}\n```\n", fmt::join(lines, "\n"));
}

std::string VerbText(const CLI::App& verb, std::string_view heading)
{
    return fmt::format("\n{} {}\n\n{}\n", heading, PathOf(verb), AsSentence(verb.get_description())) +
           CodeBlock({UsageOf(verb)}) + ListOf(ArgumentsOf(verb)) + ListOf(OptionsOf(verb)) +
           (ExamplesOf(verb).empty() ? "" : "\nFor example:\n") + CodeBlock(ExamplesOf(verb));
}

// A verb is a chapter of its own, or stands in that of its noun.
std::string Chapter(const CLI::App& command)
{
    if (CommandsOf(command).empty())
    {
        return VerbText(command, "##");
    }
    std::string text = fmt::format("\n## {}\n\n{}\n", PathOf(command), AsSentence(command.get_description()));
    for (const CLI::App* verb : VerbsOf(command))
    {
        text += VerbText(*verb, "###");
    }
    return text;
}

std::string LinkTo(const CLI::App& command, std::string_view words)
{
    return fmt::format("[{}](#{})", words, AnchorOf(command));
}

// The verbs of a noun by their words behind it.
std::string LinksToVerbs(const CLI::App& command)
{
    std::vector<std::string> links;
    if (!CommandsOf(command).empty())
    {
        for (const CLI::App* verb : VerbsOf(command))
        {
            links.push_back(LinkTo(*verb, PathOf(*verb).substr(PathOf(command).size() + 1)));
        }
    }
    return fmt::format("{}", fmt::join(links, ", "));
}

std::string TableOfCommands(const CLI::App& root)
{
    std::string table = "\n| Command | What it is for | Verbs |\n|---|---|---|\n";
    for (const CLI::App* command : CommandsOf(root))
    {
        table += fmt::format("| {} | {} | {} |\n", LinkTo(*command, command->get_name()),
                             Escaped(command->get_description()), LinksToVerbs(*command));
    }
    return table;
}

std::string ListOfStatuses()
{
    std::string list = "\n";
    for (const ExitStatus& status : ExitStatuses)
    {
        list += fmt::format("- {}: {}\n", Code(std::to_string(status.status)), status.meaning);
    }
    return list;
}

std::string ListOfFiles()
{
    std::string list = "\n";
    for (const NamedText& file : FilesOfNorvctl)
    {
        list += fmt::format("- {}: {}\n", Code(file.name), Escaped(file.text));
    }
    return list;
}

} // namespace

std::string MarkdownReference(const CLI::App& root)
{
    std::string text = fmt::format("# {}\n\n{}\n", PathOf(root), AsSentence(root.get_description()));
    for (const std::string_view paragraph : AboutNorvctl)
    {
        text += '\n' + Escaped(paragraph) + '\n';
    }
    text += CodeBlock({UsageOf(root)});
    text += "\nOptions of every command:\n" + ListOf(OptionsOfAll(root));
    text += "\n## Commands\n" + TableOfCommands(root);
    for (const CLI::App* command : CommandsOf(root))
    {
        text += Chapter(*command);
    }
    text += "\n## Exit status\n" + ListOfStatuses();
    text += "\n## Files\n" + ListOfFiles();
    text += "\n## Examples\n" + CodeBlock(ExamplesOf(root));
    return text;
}

} // namespace norvctl
