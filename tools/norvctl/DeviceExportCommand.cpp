#include "Commands.h"
#include "DeviceDocument.h"
#include "Example.h"
#include "RawOutput.h"

#include <memory>
#include <string>

namespace norvctl
{

namespace
{

constexpr int Indent = 2;

// The same with --json and without: it is JSON either way, with line feeds alone whatever the system is.
void Export(const std::string& device)
{
    const DeviceDocument document{device, TransferredPart(ReadDeviceFile(device))};
    RawOutput output;
    output.Write(AsJson(document).dump(Indent));
    output.EndLine();
}

} // namespace

void AddDeviceExportCommand(CLI::App& device)
{
    const auto name = std::make_shared<std::string>();
    CLI::App* const command = device.add_subcommand(
        "export",
        "print one as a JSON document, which device import puts back. Not carried are the types of "
        "values, what the driver loads, lists and constraints, further attributes, and of the links "
        "and what stands with them all but DescDefault, DescText, PropSheet and Diagnosis");
    command->add_option("DEVICE", *name, "the log device")->required();
    command->callback([=] { Export(*name); });
    ShowExample(*command, "norvctl device export Kesselhaus > kesselhaus.json");
}

} // namespace norvctl
