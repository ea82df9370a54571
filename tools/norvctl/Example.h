#pragma once

// The example below the help of a verb; the reference of all verbs shows it, too.

#include <CLI/CLI.hpp>
#include <string>

namespace norvctl
{

// A command line as it is typed, "norvctl device list --type MPI"; each verb has one at least.
inline void ShowExample(CLI::App& verb, const std::string& commandLine)
{
    const std::string before = verb.get_footer();
    verb.footer(before.empty() ? "Example:\n  " + commandLine : before + "\n  " + commandLine);
}

} // namespace norvctl
