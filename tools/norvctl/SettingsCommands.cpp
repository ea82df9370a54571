#include "Commands.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>
#include <memory>
#include <string>

// Nobody is told of what happens here, so that there is nothing to wait for.

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string name;
    std::string value;
};

ReadResult Read(const std::string& name)
{
    const std::wstring setting = ToWide(name);
    return ReadText(
        [&](wchar_t* value, uint32_t* length) { return GetValueInPGSP_BL(setting.c_str(), value, length); });
}

void Get(const Report& report, const Arguments& arguments)
{
    const ReadResult read = Read(arguments.name);
    Require(read.result, arguments.name);
    report.Answer(read.value, {{"setting", arguments.name}, {"value", read.value}});
}

void Set(const Report& report, const Arguments& arguments)
{
    const ReadResult before = Read(arguments.name);
    Require(SetValueInPGSP_BL(ToWide(arguments.name).c_str(), ToWide(arguments.value).c_str()),
            arguments.name);
    const ReadResult after = Read(arguments.name);
    // What can't be read, as an empty value, may have changed all the same.
    const bool isKnownSame = before == after && after.result == PGSP_OK;
    const char* const what = isKnownSame ? "unchanged" : "set";
    report.Answer(fmt::format("{} {}", what, arguments.name), {{"done", what}, {"setting", arguments.name}});
}

} // namespace

void AddSettingsCommands(CLI::App& app, const Report& report)
{
    CLI::App* const settings = app.add_subcommand("settings", "values of this machine");
    settings->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = settings->add_subcommand(verb, help);
        command->add_option("SETTING", arguments->name, "the setting")->required();
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };

    addVerb("get", "print one", &Get);
    addVerb("set", "set one; the first one makes the file", &Set)
        ->add_option("VALUE", arguments->value, "the value")
        ->required();
}

} // namespace norvctl
