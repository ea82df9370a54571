// norvctl: the configuration store from the command line. A client of the library's exports.

#include "Commands.h"
#include "Console.h"
#include "Report.h"
#include "Text.h"

#include <iostream>

#include <CLI/CLI.hpp>
#include <exception>

int main() // NOLINT(bugprone-exception-escape) what CLI11 throws ahead of the parse is a slip of ours
{
    const norvctl::ConsoleStreams streams;

    CLI::App app("norvctl: the configuration store of the industrial communication stack", "norvctl");
    app.require_subcommand(1);

    norvctl::Report report;
    app.add_flag("--json", report.json, "answer with one JSON document");
    app.add_flag("--headings", report.headings, "head the columns of tables also in a pipe or file");
    app.fallthrough();

    norvctl::AddDeviceCommands(app, report);
    norvctl::AddNameCommands(app, report);
    norvctl::AddBoardCommands(app, report);
    norvctl::AddProtocolCommands(app, report);
    norvctl::AddTemplateCommands(app, report);
    norvctl::AddSettingsCommands(app, report);
    norvctl::AddDataCommands(app, report);
    norvctl::AddWatchCommand(app, report);
    norvctl::AddTraceCommands(app, report);
    norvctl::AddVersionCommand(app, report);
    norvctl::AddDoctorCommand(app, report);

    try
    {
        app.parse(norvctl::CommandLineReversed());
        return 0;
    }
    catch (const CLI::RuntimeError& error)
    {
        return error.get_exit_code(); // of a verb that has told all there is to tell
    }
    catch (const CLI::ParseError& error)
    {
        const int misuse = app.got_subcommand("doctor") ? 2 : 1; // to doctor 1 is an answer
        return app.exit(error) == 0 ? 0 : misuse;
    }
    catch (const std::exception& error)
    {
        std::cerr << "norvctl: " << error.what() << '\n';
        return 1;
    }
}
