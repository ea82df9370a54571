#include "Device.h"
#include "Doctor.h"
#include "Reads.h"
#include "Refusal.h"
#include "RefusedValues.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <fmt/format.h>

namespace norvctl
{

namespace
{

std::vector<std::string> AllDevices()
{
    return ReadTexts("the log devices",
                     [](wchar_t* list, uint32_t* length) { return PGSP_GetLogDeviceListBL(list, length); });
}

void TakeTemporaries(std::vector<std::string>& names, Findings& findings)
{
    std::erase_if(names, [&](const std::string& name) {
        if (!ToWide(name).starts_with(TemporaryPrefix))
        {
            return false;
        }
        findings.push_back(
            {Severity::Warning, DeviceKind.word, name,
             "it is a temporary copy that was neither applied nor discarded",
             fmt::format("unless somebody works on it: norvctl device edit discard {}", name)});
        return true;
    });
}

int32_t ReadForDriver(const std::string& name)
{
    uint8_t* records = nullptr;
    uint32_t length = 0;
    const int32_t result = norvDriverReadLogDevice(ToWide(name).c_str(), &records, &length);
    if (result == PGSP_OK)
    {
        GlobalFree(records);
    }
    return result;
}

Finding UnreadByDriver(const std::string& name, int32_t result)
{
    const std::string what = "the driver cannot read it: " + InWords(result);
    switch (result)
    {
    case PGSP_ERR_DRIVER_READ:
        return {Severity::Warning, DeviceKind.word, name, what,
                "name its sections in the element Load of its file, if a driver is to serve it"};
    case PGSP_ERR_INVALID_FILE:
        return {Severity::Error, DeviceKind.word, name, what,
                "correct its file by Schemes\\Corvane.Device.Driver.Logdevice.xsd, or make it anew from a "
                "template"};
    default:
        return {Severity::Error, DeviceKind.word, name, what,
                "look again; norvctl trace on tells more should it stay"};
    }
}

void CheckValues(const std::string& name, const ValueCheck& check, Findings& findings)
{
    for (const RefusedValue& refused : RefusedValues(name, check))
    {
        const std::string allowed = AllowedValues(ToWide(name), ToWide(refused.parameter), refused.result);
        findings.push_back({Severity::Error, DeviceKind.word, name,
                            fmt::format("{} is \"{}\", which its catalogue refuses: {}", refused.parameter,
                                        refused.value, InWords(refused.result)),
                            fmt::format("norvctl device set \"{}\" {} VALUE{}{}", name, refused.parameter,
                                        allowed.empty() ? "" : "; ", allowed)});
    }
}

void CheckDevice(const std::string& name, Catalogue& catalogue, Findings& findings)
{
    if (!IsDeviceThere(name))
    {
        findings.push_back(MisnamedFile(DeviceKind, name));
        return;
    }
    const int32_t result = ReadForDriver(name);
    const bool isTold = result == PGSP_ERR_CANT_LOAD_SCHEMA || result == PGSP_ERR_FOLDER_NOT_FOUND;
    if (result == PGSP_ERR_CANT_LOAD_XML_FILE || (isTold && !IsWellFormed(DeviceKind, name)))
    {
        findings.push_back(UnreadableFile(DeviceKind, name));
        return;
    }
    if (result != PGSP_OK && !isTold)
    {
        findings.push_back(UnreadByDriver(name, result));
    }

    const std::string board = ReadDevice(name, "DeviceID").value;
    const std::string protocol = ReadDevice(name, "CP_TYPE").value;
    if (catalogue.CheckEntries(DeviceKind.word, name, board, protocol, findings))
    {
        CheckValues(name, catalogue.ChecksOf(board, protocol), findings);
    }
}

} // namespace

void CheckDevices(Catalogue& catalogue, const StoreFolders& folders, Progress& progress, Findings& findings)
{
    if (!folders.logDevices)
    {
        return;
    }
    std::vector<std::string> names = AllDevices();
    TakeTemporaries(names, findings);
    TakeLeftOvers(DeviceKind, names, findings);
    progress.Begin(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        progress.Tell(i, names[i]);
        CheckDevice(names[i], catalogue, findings);
    }
}

} // namespace norvctl
