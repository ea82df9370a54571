#include "Commands.h"
#include "Device.h"
#include "Example.h"
#include "FileDifferences.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <iostream>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace norvctl
{

namespace
{

constexpr int Differs = 1; // exit statuses with --exit-code
constexpr int Failed = 2;

struct Arguments
{
    std::string left;
    std::string right;
    bool tellsByExit = false;
};

struct SubdeviceName
{
    std::string device;
    std::string subdevice;
};

std::optional<SubdeviceName> SplitSubdevice(const std::string& name)
{
    const std::wstring wide = ToWide(name);
    const std::wstring device = FileOfDevice(name);
    constexpr std::wstring_view between = L"\\subdevices\\";
    if (device.size() == wide.size())
    {
        return std::nullopt;
    }
    return SubdeviceName{ToUtf8(device), ToUtf8(wide.substr(device.size() + between.size()))};
}

// A subdevice is compared as if it were one without sections.
FileValues ReadOne(const std::string& name)
{
    const std::optional<SubdeviceName> part = SplitSubdevice(name);
    if (!part)
    {
        return ReadDeviceFile(name);
    }
    const FileValues device = ReadDeviceFile(part->device);
    const auto found =
        std::find_if(device.subdevices.begin(), device.subdevices.end(), [&](const ValueGroup& each) {
            return EqualNoCase(ToWide(each.name), ToWide(part->subdevice));
        });
    Require(found == device.subdevices.end() ? PGSP_ERR_PARAM_NOT_FOUND : PGSP_OK, name,
            "there is no such subdevice");
    FileValues alone;
    alone.sections = {{"subdevice", found->values}};
    return alone;
}

void Diff(const Report& report, const Arguments& arguments)
{
    const auto differences = DifferencesBetween(ReadOne(arguments.left), ReadOne(arguments.right));
    if (report.json || !differences.empty())
    {
        report.Answer(AsLines(AsTexts(differences)), AsArray(differences));
    }
    if (arguments.tellsByExit && !differences.empty())
    {
        throw CLI::RuntimeError(Differs);
    }
}

// With --exit-code a 1 is an answer, so that what fails ends with another.
void DiffOrFail(const Report& report, const Arguments& arguments)
{
    try
    {
        Diff(report, arguments);
    }
    catch (const Failure& failure)
    {
        if (!arguments.tellsByExit)
        {
            throw;
        }
        std::cerr << "norvctl: " << failure.what() << '\n';
        throw CLI::RuntimeError(Failed);
    }
}

} // namespace

void AddDeviceDiffCommand(CLI::App& device, const Report& report)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* const diff = device.add_subcommand(
        "diff", "print the values that differ between two, by section; nothing when none does");
    diff->add_option("A", arguments->left, "the log device, or DEVICE\\subdevices\\SUB")->required();
    diff->add_option("B", arguments->right, "the one that it is compared with")->required();
    diff->add_flag("--exit-code", arguments->tellsByExit,
                   "end with 1 when they differ, and with 2 when they can't be compared");
    diff->callback([=, &report] { DiffOrFail(report, *arguments); });
    ShowExample(*diff, "norvctl device diff \"Abf\xC3\xBCllung Linie 1\" \"Abf\xC3\xBCllung Linie 2\"");
}

} // namespace norvctl
