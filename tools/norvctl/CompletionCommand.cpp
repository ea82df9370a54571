#include "Commands.h"
#include "Completion.h"
#include "CompletionScripts.h"
#include "DisplayText.h"
#include "Example.h"
#include "ExitStatus.h"
#include "RawOutput.h"
#include "ShellLine.h"
#include "StoreValues.h"
#include "Text.h"

#include <windows.h>

#include <algorithm>
#include <exception>
#include <fmt/format.h>
#include <memory>

namespace norvctl
{

namespace
{

constexpr wchar_t LineVariable[] = L"NORVCTL_LINE"; // of the environment

struct Arguments
{
    std::string shell;
    std::string line;
    std::string breaks;
};

std::string LineOfEnvironment()
{
    const DWORD size = GetEnvironmentVariableW(LineVariable, nullptr, 0);
    std::wstring line(size, L'\0');
    line.resize(GetEnvironmentVariableW(LineVariable, line.data(), size));
    return ToUtf8(line);
}

// The candidates for a line, and whether files of the machine are, too.
struct Answer
{
    std::vector<Candidate> candidates;
    bool arePaths = false;
};

Answer AnswerTo(const CLI::App& root, const ShellLine& line)
{
    Answer answer;
    const auto values = [&](const std::string& word, const CommandLine& commandLine) {
        answer.arePaths = IsPathOfMachine(word);
        return ValuesFromStore(word, commandLine);
    };
    answer.candidates = CandidatesFor(root, line.words, line.present, values);
    // A value with a line feed would be taken for two candidates.
    std::erase_if(answer.candidates, [&](const Candidate& each) {
        return !each.word.starts_with(line.kept) || OnOneLine(each.word) != each.word;
    });
    return answer;
}

std::string BashLines(const std::vector<Candidate>& candidates, const ShellLine& line)
{
    std::vector<std::string> words;
    for (const Candidate& candidate : candidates)
    {
        words.push_back(candidate.word);
    }
    return fmt::format("{}\n", fmt::join(BashWords(words, line), "\n"));
}

// What is put there, what is shown in a list of them, and what is told of it, which must not be empty.
std::string PowerShellLines(const std::vector<Candidate>& candidates)
{
    std::string lines;
    for (const Candidate& each : candidates)
    {
        lines += fmt::format("{}\t{}\t{}\n", PowerShellWord(each.word), each.word,
                             each.help.empty() ? each.word : OnOneLine(each.help));
    }
    return lines;
}

bool Complete(const CLI::App& root, const Arguments& arguments)
{
    const bool isBash = arguments.shell == "bash";
    const ShellLine line =
        isBash ? ReadBashLine(arguments.line, arguments.breaks) : ReadPowerShellLine(LineOfEnvironment());
    const Answer answer = AnswerTo(root, line);
    if (!answer.candidates.empty())
    {
        RawOutput().Write(isBash ? BashLines(answer.candidates, line) : PowerShellLines(answer.candidates));
    }
    return !answer.arePaths;
}

// Whoever is typing can't use an error.
bool CompleteOrSayNothing(const CLI::App& root, const Arguments& arguments)
{
    try
    {
        return Complete(root, arguments);
    }
    catch (const std::exception&)
    {
        return true;
    }
}

void AddComplete(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* const complete =
        app.add_subcommand("complete", "print what may stand at the end of a line; 1: a file of the machine");
    complete->group(""); // for the scripts alone
    complete->add_option("SHELL", arguments->shell)->required()->check(CLI::IsMember({"bash", "powershell"}));
    complete->add_option("LINE", arguments->line);
    complete->add_option("BREAKS", arguments->breaks);
    complete->callback([=, &app] {
        if (!CompleteOrSayNothing(app, *arguments))
        {
            throw CLI::RuntimeError(Refused);
        }
    });
}

} // namespace

void AddCompletionCommands(CLI::App& app)
{
    const auto shell = std::make_shared<std::string>();
    CLI::App* const completion =
        app.add_subcommand("completion", "print the script by which a shell completes norvctl's words");
    completion->add_option("SHELL", *shell, "the shell")
        ->required()
        ->check(CLI::IsMember({"bash", "powershell"}));
    completion->callback([=] { RawOutput().Write(*shell == "bash" ? BashScript : PowerShellScript); });
    ShowExample(*completion, "norvctl completion bash");
    ShowExample(*completion, "norvctl completion powershell");
    AddComplete(app);
}

} // namespace norvctl
