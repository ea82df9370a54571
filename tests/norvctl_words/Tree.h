#pragma once

// The tree of norvctl's commands, without norvctl.

#include "norvctl/Commands.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace norvepa::test
{

class Tree
{
public:
    Tree() { norvctl::AddCommands(m_root, m_report); }

    [[nodiscard]] CLI::App& root() { return m_root; }

    // "device edit begin"
    [[nodiscard]] CLI::App& Command(const std::string& words)
    {
        CLI::App* command = &m_root;
        for (const std::string& word : CLI::detail::split(words, ' '))
        {
            command = command->get_subcommand(word);
        }
        return *command;
    }

    // Understands the words as norvctl does, and does nothing. Throws what the parser throws.
    void Parse(const std::vector<std::string>& words)
    {
        m_root.parse_complete_callback([] { throw Understood(); }); // ahead of what the verb does
        try
        {
            m_root.parse(std::vector<std::string>(words.rbegin(), words.rend()));
        }
        catch (const Understood&)
        {
        }
    }

private:
    struct Understood
    {
    };

    norvctl::Report m_report;
    CLI::App m_root;
};

} // namespace norvepa::test
