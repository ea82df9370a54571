#include "Changes.h"
#include "Commands.h"
#include "Device.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string device;
    std::string parameter = "busparam";
    std::string baudrate;
};

ChangeOfValues Change(const std::string& device, const std::function<int32_t()>& change)
{
    return MakeChangeOfValues(
        LogDevicesWord, FileOfDevice(device), [&] { return ValuesOfDevice(device); }, change);
}

// Nothing at all when nothing has changed: people get no line, programs an empty array.
void AnswerChanges(const Report& report, const std::vector<ValueChange>& changes)
{
    if (report.json || !changes.empty())
    {
        report.Answer(AsLines(AsTexts(changes)), AsArray(changes));
    }
}

// What a profile wrote until it failed is there to stay, and then more to the point than why it failed.
std::string WhatStays(const std::vector<ValueChange>& changes)
{
    return fmt::format("what it wrote stays: {}", fmt::join(AsTexts(changes), ", "));
}

std::string WhyNotApplied(const Arguments& arguments, const std::string& protocol, const ChangeOfValues& made)
{
    if (made.result != PGSP_PROFILE_NO_VALUE)
    {
        return "";
    }
    if (!made.changes.empty())
    {
        return WhatStays(made.changes);
    }
    const ReadResult value = ReadDevice(arguments.device, arguments.parameter);
    if (value.result != PGSP_OK)
    {
        return "the log device has no value for it";
    }
    const int32_t known = PGSP_ProfileCollectionExistsBL(
        ToWide(protocol).c_str(), ToWide(arguments.parameter).c_str(), ToWide(value.value).c_str());
    return known == PGSP_OK
               ? ""
               : fmt::format("{} has no profile for {} {}", protocol, arguments.parameter, value.value);
}

void ApplyProfile(const Report& report, const Arguments& arguments)
{
    RequireDevice(arguments.device);
    const ReadResult protocol = ReadDevice(arguments.device, "CP_TYPE");
    Require(protocol.result, DeviceSubject(arguments.device, "CP_TYPE"));

    const ChangeOfValues made = Change(arguments.device, [&] {
        return PGSP_LogDeviceSetProfileRBL(ToWide(arguments.device).c_str(), ToWide(protocol.value).c_str(),
                                           ToWide(arguments.parameter).c_str());
    });
    Require(made.result, DeviceSubject(arguments.device, arguments.parameter),
            WhyNotApplied(arguments, protocol.value, made));
    AnswerChanges(report, made.changes);
}

std::string WhyNotSet(const Arguments& arguments, const ChangeOfValues& made)
{
    if (made.result != PGSP_PROFILE_NO_VALUE)
    {
        return "";
    }
    return made.changes.empty() ? fmt::format("see device choices {} baudrate --average", arguments.device)
                                : WhatStays(made.changes);
}

// Nobody is told of the speed alone that a log device of L2 gets in its own profile: the wait for that is in
// vain.
void SetBusparams(const Report& report, const Arguments& arguments)
{
    RequireDevice(arguments.device);
    const ChangeOfValues made = Change(arguments.device, [&] {
        return LogDeviceSetBusparamsBL(ToWide(arguments.device).c_str(), ToWide(arguments.baudrate).c_str());
    });
    Require(made.result, DeviceSubject(arguments.device, "baudrate"), WhyNotSet(arguments, made));
    AnswerChanges(report, made.changes);
}

} // namespace

void AddDeviceProfileCommands(CLI::App& device, const Report& report)
{
    const auto arguments = std::make_shared<Arguments>();

    CLI::App* const profile = device.add_subcommand(
        "profile", "give one the values that belong to its bus profile, and print what has changed");
    profile->add_option("DEVICE", arguments->device, "the log device")->required();
    profile->add_option("PARAMETER", arguments->parameter,
                        "the parameter that chooses: busparam, which it is without this, or baudrate");
    profile->callback([=, &report] { ApplyProfile(report, *arguments); });

    CLI::App* const busparams = device.add_subcommand(
        "busparams", "set the baud rate of one with all that follows from it, and print what has changed");
    busparams->add_option("DEVICE", arguments->device, "the log device")->required();
    busparams->add_option("BAUD", arguments->baudrate, "the baud rate")->required();
    busparams->callback([=, &report] { SetBusparams(report, *arguments); });
}

} // namespace norvctl
