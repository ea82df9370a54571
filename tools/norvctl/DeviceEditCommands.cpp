#include "Commands.h"
#include "Device.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <vector>

// What happens here is announced to nobody, so that there is nothing to wait for.

namespace norvctl
{

namespace
{

constexpr std::size_t Temporaries = 255; // as many as there can be at once

struct Arguments
{
    std::string temporary;
    std::string device;
    std::string source; // the template
};

// One code tells of all that can go wrong.
std::string WhyNotBegun(const Arguments& arguments, int32_t result)
{
    if (result != PGSP_CANT_CREATE_TEMP_LOG_DEVICE)
    {
        return "";
    }
    if (TemporaryDevices().size() >= Temporaries)
    {
        return "all numbers are taken, see device edit list";
    }
    if (arguments.device.empty())
    {
        return "template list tells what templates there are";
    }
    return IsDeviceThere(arguments.device) ? "" : "there is no such log device";
}

void Begin(const Report& report, const Arguments& arguments)
{
    const bool isCopy = !arguments.device.empty();
    const std::string& original = isCopy ? arguments.device : arguments.source;
    const std::wstring name = ToWide(original);
    const auto create = isCopy ? &LogDeviceCreateTempBL : &LogDeviceCreateTempFromDefBL;
    // The buffer has room at once: one too small would cost a number that nobody learns.
    const ReadResult made =
        ReadText([&](wchar_t* text, uint32_t* length) { return create(name.c_str(), text, length); });
    Require(made.result, original, WhyNotBegun(arguments, made.result));
    report.Answer(made.value, {{"temporary", made.value}, {isCopy ? "device" : "template", original}});
}

void List(const Report& report)
{
    const std::vector<std::string> names = TemporaryDevices();
    report.Answer(AsTable("TEMPORARY", names), names);
}

std::string WhyNotApplied(const Arguments& arguments, int32_t result)
{
    switch (result)
    {
    case PGSP_ERR_FILE_NOT_FOUND:
        return IsDeviceThere(arguments.device) ? "the log device is in use or protected"
                                               : "there is no such log device";
    case PGSP_ERR_CANT_COPY_FILE:
        return fmt::format("the log device is gone, all that is left of it is {}", arguments.temporary);
    case PGSP_ERR_CANT_DELETE_FILE:
        return fmt::format("the log device is what {} is, which is still there", arguments.temporary);
    default:
        return "";
    }
}

void Apply(const Report& report, const Arguments& arguments)
{
    const std::wstring temporary = ToWide(arguments.temporary);
    // The library removes the log device before it looks at what is to take its place.
    Require(LogDeviceExistBL(temporary.c_str(), 0), arguments.temporary);
    const int32_t result = LogDeviceUpdateWithTempBL(temporary.c_str(), ToWide(arguments.device).c_str());
    Require(result, arguments.device, WhyNotApplied(arguments, result));
    report.Answer(fmt::format("applied {} to {}", arguments.temporary, arguments.device),
                  {{"done", "applied"}, {"device", arguments.device}, {"temporary", arguments.temporary}});
}

std::string WhyNotDiscarded(int32_t result)
{
    switch (result)
    {
    case PGSP_ERR_INVALID_PARAMETERS:
        return "it is not a temporary log device";
    case PGSP_ERR_CANT_DELETE_FILE:
        return "device edit list tells which there are";
    default:
        return "";
    }
}

void Discard(const Report& report, const Arguments& arguments)
{
    const int32_t result = LogDeviceDelTempBL(ToWide(arguments.temporary).c_str());
    Require(result, arguments.temporary, WhyNotDiscarded(result));
    report.Answer("discarded " + arguments.temporary,
                  {{"done", "discarded"}, {"temporary", arguments.temporary}});
}

// To the library any log device may take the place of any other, and itself too, of which nothing is left.
std::string RefuseOthers(const std::string& name)
{
    const std::string prefix = ToUtf8(TemporaryPrefix);
    const bool isTemporary =
        name.starts_with(prefix) && name.size() == prefix.size() + 3 &&
        std::all_of(name.end() - 3, name.end(), [](char c) { return c >= '0' && c <= '9'; });
    return isTemporary ? "" : "this is not a temporary log device";
}

std::string RefuseTemporaryOrNone(const std::string& name)
{
    const std::string prefix = ToUtf8(TemporaryPrefix);
    const bool isTemporary = _strnicmp(name.c_str(), prefix.c_str(), prefix.size()) == 0;
    return isTemporary || name.empty() ? "this is not a log device that can be replaced" : "";
}

void AddBegin(CLI::App& edit, const Report& report, const std::shared_ptr<Arguments>& arguments)
{
    CLI::App* const begin = edit.add_subcommand("begin", "make a temporary copy and print its name");
    CLI::Option_group* const source = begin->add_option_group("source");
    source->add_option("DEVICE", arguments->device, "the log device to copy");
    source->add_option("--from", arguments->source, "a template instead")->type_name("TEMPLATE");
    source->require_option(1);
    begin->callback([=, &report] { Begin(report, *arguments); });
}

} // namespace

void AddDeviceEditCommands(CLI::App& device, const Report& report)
{
    CLI::App* const edit = device.add_subcommand("edit", "change one aside, on a temporary copy");
    edit->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();

    AddBegin(*edit, report, arguments);
    edit->add_subcommand("list", "list the temporary copies of all users")->callback([&report] {
        List(report);
    });
    CLI::App* const apply = edit->add_subcommand("apply", "put the temporary copy in the place of one");
    apply->add_option("TEMPORARY", arguments->temporary, "the temporary copy's name")
        ->required()
        ->check(RefuseOthers);
    apply->add_option("DEVICE", arguments->device, "the log device")
        ->required()
        ->check(RefuseTemporaryOrNone);
    apply->callback([=, &report] { Apply(report, *arguments); });
    CLI::App* const discard = edit->add_subcommand("discard", "remove the temporary copy");
    discard->add_option("TEMPORARY", arguments->temporary, "the temporary copy's name")->required();
    discard->callback([=, &report] { Discard(report, *arguments); });
}

} // namespace norvctl
