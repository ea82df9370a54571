#include "CommandTree.h"
#include "ExitStatus.h"
#include "Reference.h"
#include "ReferenceTexts.h"

#include <fmt/format.h>

namespace norvctl
{

namespace
{

// A backslash begins a command of the page, and so does a period or an apostrophe at the beginning of a line.
// A hyphen is one that can be copied.
std::string Escaped(std::string_view text)
{
    std::string escaped = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
    for (const char c : text)
    {
        escaped += c == '\\' ? "\\e" : c == '-' ? "\\-" : std::string(1, c);
    }
    return escaped;
}

std::string Tagged(std::string_view term, std::string_view text)
{
    return fmt::format(".TP\n\\fB{}\\fR\n{}\n", Escaped(term), Escaped(text));
}

std::string TaggedList(const OptionList& options)
{
    std::string list;
    for (const CLI::Option* option : options)
    {
        const bool isOfAll = !option->get_snames().empty();
        list += Tagged(isOfAll ? NamesOf(*option) : UsageOf(*option), DescriptionOf(*option));
    }
    return list;
}

std::string Lines(const std::vector<std::string>& lines)
{
    std::string text = ".nf\n";
    for (const std::string& line : lines)
    {
        text += Escaped(line) + '\n';
    }
    return text + ".fi\n";
}

std::string VerbText(const CLI::App& verb)
{
    const OptionList options = OptionsOf(verb);
    return fmt::format(".SS {}\n", Escaped(UsageOf(verb))) + Escaped(verb.get_description()) + ".\n" +
           TaggedList(ArgumentsOf(verb)) + TaggedList(options) + ".PP\n" + Lines(ExamplesOf(verb));
}

} // namespace

std::string ManReference(const CLI::App& root)
{
    std::string text = ".TH NORVCTL 1\n.SH NAME\n";
    text += fmt::format("{} \\- {}\n", PathOf(root), Escaped(root.get_description()));
    text += fmt::format(".SH SYNOPSIS\n{}\n.SH DESCRIPTION\n", Escaped(UsageOf(root)));
    for (std::size_t i = 0; i < AboutNorvctl.size(); ++i)
    {
        text += (i == 0 ? "" : ".PP\n") + Escaped(AboutNorvctl[i]) + '\n';
    }
    text += ".SH OPTIONS\nThese stand behind any command.\n" + TaggedList(OptionsOfAll(root));
    text += ".SH COMMANDS\n";
    for (const CLI::App* verb : VerbsOf(root))
    {
        text += VerbText(*verb);
    }
    text += ".SH EXIT STATUS\n";
    for (const ExitStatus& status : ExitStatuses)
    {
        text += Tagged(std::to_string(status.status), status.meaning);
    }
    text += ".SH FILES\n";
    for (const NamedText& file : FilesOfNorvctl)
    {
        text += Tagged(file.name, file.text);
    }
    return text + ".SH EXAMPLES\n" + Lines(ExamplesOf(root));
}

} // namespace norvctl
