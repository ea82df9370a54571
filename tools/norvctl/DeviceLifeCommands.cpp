#include "Changes.h"
#include "Commands.h"
#include "Device.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>
#include <memory>
#include <string>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string device;
    std::string source; // the template, or the log device that is copied
    bool force = false;
};

std::string WhyNotCreated(const Arguments& arguments, int32_t result)
{
    if (result == PGSP_ERR_FILE_NOT_FOUND)
    {
        return "there is no template " + arguments.source;
    }
    const bool isTaken = result == PGSP_ERR_CANT_COPY_FILE && IsDeviceThere(arguments.device);
    return isTaken ? fmt::format("there is a log device {} already", arguments.device) : "";
}

std::string WhyNotCopied(const Arguments& arguments, int32_t result)
{
    if (result != PGSP_ERR_CANT_COPY_FILE)
    {
        return "";
    }
    if (!IsDeviceThere(arguments.source))
    {
        return "there is no log device " + arguments.source;
    }
    return IsDeviceThere(arguments.device) ? fmt::format("there is a log device {} already", arguments.device)
                                           : "";
}

std::string WhyNotDeleted(const Arguments& arguments, int32_t result)
{
    switch (result)
    {
    case PGSP_OK:
        return "";
    case PGSP_ERR_LOG_DEVICE_NOT_DELETABLE:
        return "--force deletes it all the same";
    case PGSP_ERR_PARAM_NOT_FOUND:
        return "it does not say whether it may be deleted, --force deletes it all the same";
    default:
        return IsDeviceThere(arguments.device) ? "" : "there is no such log device";
    }
}

void Create(const Report& report, const Arguments& arguments)
{
    const std::wstring device = ToWide(arguments.device);
    const std::string subject = fmt::format("{} from {}", arguments.device, arguments.source);
    MakeChange(LogDevicesWord, device, [&] {
        const int32_t result = LogDeviceCreateFromDefBL(ToWide(arguments.source).c_str(), device.c_str());
        Require(result, subject, WhyNotCreated(arguments, result));
    });
    report.Answer("created " + subject,
                  {{"done", "created"}, {"device", arguments.device}, {"template", arguments.source}});
}

void Copy(const Report& report, const Arguments& arguments)
{
    const std::wstring device = ToWide(arguments.device);
    const std::string subject = fmt::format("{} to {}", arguments.source, arguments.device);
    MakeChangeOfSteps(LogDevicesWord, device, [&] {
        const int32_t result = LogDeviceCopyBL(ToWide(arguments.source).c_str(), device.c_str());
        Require(result, subject, WhyNotCopied(arguments, result));
    });
    report.Answer("copied " + subject,
                  {{"done", "copied"}, {"device", arguments.device}, {"from", arguments.source}});
}

void Delete(const Report& report, const Arguments& arguments)
{
    const std::wstring device = ToWide(arguments.device);
    MakeChange(LogDevicesWord, device, [&] {
        const int32_t result = LogDeviceDelBL(device.c_str(), arguments.force ? 1 : 0);
        Require(result, arguments.device, WhyNotDeleted(arguments, result));
    });
    report.Answer("deleted " + arguments.device, {{"done", "deleted"}, {"device", arguments.device}});
}

} // namespace

void AddDeviceLifeCommands(CLI::App& device, const Report& report)
{
    const auto arguments = std::make_shared<Arguments>();

    CLI::App* const create = device.add_subcommand("create", "make one from a template");
    create->add_option("DEVICE", arguments->device, "the new log device")->required();
    create->add_option("--from", arguments->source, "the template, as template list tells it")
        ->required()
        ->type_name("TEMPLATE");
    create->callback([=, &report] { Create(report, *arguments); });

    CLI::App* const copy =
        device.add_subcommand("copy", "copy one; the copy is visible and can be deleted in any case");
    copy->add_option("FROM", arguments->source, "the log device")->required();
    copy->add_option("TO", arguments->device, "the new log device")->required();
    copy->callback([=, &report] { Copy(report, *arguments); });

    CLI::App* const remove =
        device.add_subcommand("delete", "remove one with its subdevices, if its enable_delete is true");
    remove->add_option("DEVICE", arguments->device, "the log device")->required();
    remove->add_flag("--force", arguments->force, "without asking for enable_delete");
    remove->callback([=, &report] { Delete(report, *arguments); });
}

} // namespace norvctl
