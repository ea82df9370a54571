#include "Commands.h"
#include "TraceSwitch.h"

#include <fmt/format.h>
#include <memory>
#include <string>

namespace norvctl
{

namespace
{

void AnswerStatus(const Report& report)
{
    const TraceStatus status = ReadTraceStatus();
    std::string text =
        fmt::format("tracing is {}\nsettings counter {}", status.on ? "on" : "off", status.counter);
    Json values = Json::object();
    for (const TraceValue& value : status.values)
    {
        text += fmt::format("\n{} = {}", value.name, value.text);
        values[value.name] = value.text;
    }
    report.Answer(text, {{"on", status.on}, {"counter", status.counter}, {"values", values}});
}

void AddOn(CLI::App& trace, const Report& report)
{
    const auto settings = std::make_shared<TraceSettings>();
    CLI::App* const on =
        trace.add_subcommand("on", "switch tracing on in every process, from its next statement on");
    on->add_option("--level", settings->level,
                   "the mask: 8 entries, 128 exits, 64 steps, 16 warnings; 0x for hexadecimal")
        ->capture_default_str();
    on->add_option("--format", settings->format, "the line's form")
        ->check(CLI::IsMember({"SHORT", "LONG", "TIME", "TEXT"}))
        ->capture_default_str();
    on->add_option("--output", settings->output, "where the lines go")
        ->check(CLI::IsMember({"FILE", "SM", "DBG", "VXD", "NorvTRACEENGINE"}))
        ->capture_default_str();
    on->add_option("--folder", settings->folder, "FILE: the folder of the two files")
        ->type_name("PATH")
        ->capture_default_str();
    on->add_option("--file", settings->file, "FILE: their name, to which 1.TRC and 2.TRC are added")
        ->capture_default_str();
    on->callback([=, &report] {
        SwitchTraceOn(*settings);
        AnswerStatus(report);
    });
}

} // namespace

void AddTraceCommands(CLI::App& app, const Report& report)
{
    CLI::App* const trace = app.add_subcommand("trace", "the trace of all processes on this machine");
    trace->require_subcommand(1);
    trace->add_subcommand("status", "print the settings")->callback([&report] { AnswerStatus(report); });
    AddOn(*trace, report);
    trace->add_subcommand("off", "switch tracing off in every process")->callback([&report] {
        SwitchTraceOff();
        AnswerStatus(report);
    });
}

} // namespace norvctl
