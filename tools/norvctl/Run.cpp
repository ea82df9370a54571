#include "Run.h"

#include "Commands.h"
#include "ExitStatus.h"
#include "Misuse.h"
#include "Report.h"
#include "Result.h"
#include "Suggestions.h"

#include <iostream>

#include <CLI/CLI.hpp>
#include <exception>

namespace norvctl
{

namespace
{

int Parse(CLI::App& app, const std::vector<std::string>& wordsReversed)
{
    try
    {
        app.parse(std::vector<std::string>(wordsReversed)); // which the parser uses up
        return Done;
    }
    catch (const CLI::RuntimeError& error)
    {
        return error.get_exit_code(); // of a verb that has told all there is to tell
    }
    catch (const CLI::Success& help)
    {
        return app.exit(help);
    }
    catch (const Failure& failure)
    {
        std::cerr << "norvctl: " << failure.what()
                  << SuggestionFor(app, {wordsReversed.rbegin(), wordsReversed.rend()}, failure) << '\n';
        return Refused;
    }
    catch (const CLI::ParseError& error)
    {
        std::cerr << ExplainMisuse(app, {wordsReversed.rbegin(), wordsReversed.rend()}, error);
        return Misused;
    }
}

} // namespace

int Run(const std::vector<std::string>& wordsReversed)
{
    try
    {
        Report report;
        CLI::App app;
        AddCommands(app, report);
        return Parse(app, wordsReversed);
    }
    catch (const std::exception& error)
    {
        std::cerr << "norvctl: " << error.what() << '\n';
        return Refused;
    }
}

} // namespace norvctl
