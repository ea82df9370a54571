#include "CommandLine.h"

#include "CommandTree.h"

#include <algorithm>
#include <utility>

namespace norvctl
{

namespace
{

// A negative number is none.
bool IsOption(const std::string& word)
{
    return word.size() > 1 && word[0] == '-' && (word[1] < '0' || word[1] > '9');
}

// All by which it can be called.
bool IsCalled(const CLI::Option& option, const std::string& word)
{
    return word.size() > 1 && option.check_name(word);
}

OptionList OptionsBehind(const CLI::App& command)
{
    OptionList options = OptionsOf(command);
    const OptionList ofAll = OptionsOfAll(command);
    options.insert(options.end(), ofAll.begin(), ofAll.end());
    return options;
}

class Follower
{
public:
    explicit Follower(const CLI::App& root) : m_line{.command = &root} {}

    void Take(const std::string& word)
    {
        if (m_line.open != nullptr)
        {
            TakeValue(*std::exchange(m_line.open, nullptr), word);
        }
        else if (m_line.isPlain || !IsOption(word))
        {
            TakeWord(word);
        }
        else if (word == "--")
        {
            m_line.isPlain = true;
        }
        else
        {
            TakeOption(word);
        }
    }

    [[nodiscard]] CommandLine Line() const { return m_line; }

private:
    void TakeWord(const std::string& word)
    {
        const CommandList commands = CommandsOf(*m_line.command);
        if (!commands.empty())
        {
            TakeCommand(commands, word);
        }
        else if (const CLI::Option* const argument = m_line.NextArgument())
        {
            TakeValue(*argument, word);
        }
        else
        {
            Wonder({StrangeWord::Kind::Excess, word});
        }
    }

    void TakeCommand(const CommandList& commands, const std::string& word)
    {
        const auto found = std::find_if(commands.begin(), commands.end(),
                                        [&](const CLI::App* command) { return command->get_name() == word; });
        if (found == commands.end())
        {
            Wonder({StrangeWord::Kind::Command, word});
        }
        else if (!m_line.strange || m_line.strange->kind != StrangeWord::Kind::Command)
        {
            m_line.command = *found;
        }
    }

    void TakeOption(const std::string& word)
    {
        const auto equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const OptionList options = OptionsBehind(*m_line.command);
        const auto found = std::find_if(options.begin(), options.end(),
                                        [&](const CLI::Option* option) { return IsCalled(*option, name); });
        if (found == options.end())
        {
            Wonder({StrangeWord::Kind::Option, name});
        }
        else if (equals != std::string::npos)
        {
            TakeValue(**found, word.substr(equals + 1));
        }
        else if (!WordOf(**found).empty())
        {
            m_line.open = *found;
        }
    }

    void TakeValue(const CLI::Option& option, const std::string& value)
    {
        const auto values = ValuesOf(option);
        if (!values.empty() && std::find(values.begin(), values.end(), value) == values.end())
        {
            Wonder({StrangeWord::Kind::Value, value, &option});
        }
        m_line.given.push_back({&option, value});
    }

    void Wonder(StrangeWord word)
    {
        if (!m_line.strange)
        {
            m_line.strange = std::move(word);
        }
    }

    CommandLine m_line;
};

} // namespace

const CLI::Option* CommandLine::NextArgument() const
{
    const OptionList arguments = ArgumentsOf(*command);
    const auto taken = static_cast<std::size_t>(std::count_if(
        given.begin(), given.end(), [](const GivenValue& value) { return value.option->get_positional(); }));
    return taken < arguments.size() ? arguments[taken] : nullptr;
}

std::string CommandLine::ValueOf(std::string_view word) const
{
    const auto found = std::find_if(given.rbegin(), given.rend(),
                                    [&](const GivenValue& value) { return WordOf(*value.option) == word; });
    return found == given.rend() ? "" : found->value;
}

CommandLine Follow(const CLI::App& root, const std::vector<std::string>& words)
{
    Follower follower(root);
    for (const std::string& word : words)
    {
        follower.Take(word);
    }
    return follower.Line();
}

std::vector<std::string> OptionNames(const CLI::App& command)
{
    std::vector<std::string> names;
    for (const CLI::Option* option : OptionsBehind(command))
    {
        names.push_back(NameOf(*option));
    }
    return names;
}

} // namespace norvctl
