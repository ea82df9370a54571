#include "Completion.h"

#include "CommandTree.h"
#include "Text.h"

#include <algorithm>
#include <iterator>

namespace norvctl
{

namespace
{

using Candidates = std::vector<Candidate>;

Candidates AsCandidates(const std::vector<std::string>& words)
{
    Candidates candidates;
    for (const std::string& word : words)
    {
        candidates.push_back({word, ""});
    }
    return candidates;
}

Candidates CommandCandidates(const CLI::App& command)
{
    Candidates candidates;
    for (const CLI::App* each : CommandsOf(command))
    {
        candidates.push_back({each->get_name(), each->get_description()});
    }
    return candidates;
}

// Those that haven't been given; none takes more than one value.
Candidates OptionCandidates(const CommandLine& line)
{
    OptionList options = OptionsOf(*line.command);
    const OptionList ofAll = OptionsOfAll(*line.command);
    options.insert(options.end(), ofAll.begin(), ofAll.end());
    Candidates candidates;
    for (const CLI::Option* option : options)
    {
        const bool isGiven = std::any_of(line.given.begin(), line.given.end(),
                                         [&](const GivenValue& each) { return each.option == option; });
        if (!isGiven)
        {
            candidates.push_back({NameOf(*option), option->get_description()});
        }
    }
    return candidates;
}

Candidates ValueCandidates(const CLI::Option& option, const CommandLine& line, const StoreValues& storeValues)
{
    const auto values = ValuesOf(option);
    return AsCandidates(values.empty() ? storeValues(WordOf(option), line) : values);
}

// "--type=M": the values with the option's name ahead of them.
Candidates ValuesBehindName(const CLI::App& root, std::vector<std::string> words, const std::string& present,
                            const StoreValues& storeValues)
{
    const std::string name = present.substr(0, present.find('='));
    words.push_back(name);
    const CommandLine line = Follow(root, words);
    if (line.open == nullptr)
    {
        return {};
    }
    Candidates candidates = ValueCandidates(*line.open, line, storeValues);
    for (Candidate& candidate : candidates)
    {
        candidate.word = name + '=' + candidate.word;
    }
    return candidates;
}

Candidates AllCandidates(const CLI::App& root, const std::vector<std::string>& words,
                         const std::string& present, const StoreValues& storeValues)
{
    const CommandLine line = Follow(root, words);
    if (line.open != nullptr)
    {
        return ValueCandidates(*line.open, line, storeValues);
    }
    if (line.strange && line.strange->kind == StrangeWord::Kind::Command)
    {
        return {};
    }
    if (!line.isPlain && present.starts_with('-'))
    {
        return present.find('=') == std::string::npos ? OptionCandidates(line)
                                                      : ValuesBehindName(root, words, present, storeValues);
    }
    if (!CommandsOf(*line.command).empty())
    {
        return CommandCandidates(*line.command);
    }
    const CLI::Option* const argument = line.NextArgument();
    if (argument != nullptr)
    {
        return ValueCandidates(*argument, line, storeValues);
    }
    return line.isPlain ? Candidates{} : OptionCandidates(line);
}

bool StartsWithNoCase(const std::string& word, const std::string& start)
{
    return ToLower(ToWide(word)).starts_with(ToLower(ToWide(start)));
}

} // namespace

std::vector<Candidate> CandidatesFor(const CLI::App& root, const std::vector<std::string>& words,
                                     const std::string& present, const StoreValues& storeValues)
{
    const Candidates all = AllCandidates(root, words, present, storeValues);
    Candidates fitting;
    std::copy_if(all.begin(), all.end(), std::back_inserter(fitting),
                 [&](const Candidate& each) { return each.word.starts_with(present); });
    if (fitting.empty())
    {
        std::copy_if(all.begin(), all.end(), std::back_inserter(fitting),
                     [&](const Candidate& each) { return StartsWithNoCase(each.word, present); });
    }
    return fitting;
}

} // namespace norvctl
