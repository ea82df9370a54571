#include "Commands.h"

#include "Example.h"
#include "Examples.h"
#include "Help.h"

namespace norvctl
{

namespace
{

void AddOptionsOfAll(CLI::App& app, Report& report)
{
    app.add_flag("--json", report.json, "answer with one JSON document");
    app.add_flag("--headings", report.headings, "head the columns of tables also in a pipe or file");
}

} // namespace

void AddCommands(CLI::App& app, Report& report)
{
    app.name("norvctl");
    app.description("the configuration store of the industrial communication stack");
    app.require_subcommand(1);
    app.fallthrough();
    app.allow_windows_style_options(false); // "/dev/ttyS0" is a value as any other
    UseHelp(app);
    AddOptionsOfAll(app, report);

    AddDeviceCommands(app, report);
    AddNameCommands(app, report);
    AddBoardCommands(app, report);
    AddProtocolCommands(app, report);
    AddTemplateCommands(app, report);
    AddSettingsCommands(app, report);
    AddDataCommands(app, report);
    AddStoreCommands(app, report);
    AddReportCommand(app, report);
    AddDoctorCommand(app, report);
    AddWatchCommand(app, report);
    AddTraceCommands(app, report);
    AddVersionCommand(app, report);
    AddCompletionCommands(app);
    AddReferenceCommand(app);
    ShowExamples(app);
    // Commands that are added take over what their parent shows.
    ShowExample(app, "norvctl device list --type MPI");
    ShowExample(app, "norvctl device get Kesselhaus baudrate");
    ShowExample(app, "norvctl --json name show \"Kessel#1\"");
}

} // namespace norvctl
