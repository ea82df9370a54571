#include "Device.h"
#include "Doctor.h"
#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>

namespace norvctl
{

namespace
{

std::vector<std::string> AllNames()
{
    return ReadTexts("the log names",
                     [](wchar_t* list, uint32_t* length) { return PGSP_GetLogNameListBL(list, length); });
}

std::string LinkOf(const std::wstring& name)
{
    return ReadText([&](wchar_t* device, uint32_t* length) {
               return LogNameGetLogDeviceBL(name.c_str(), device, length);
           })
        .value;
}

void CheckName(const std::string& name, const StoreFolders& folders, Findings& findings)
{
    const std::wstring wide = ToWide(name);
    if (LogNameExistBL(wide.c_str(), 0) != PGSP_OK)
    {
        findings.push_back(MisnamedFile(NameKind, name));
        return;
    }
    if (!IsWellFormed(NameKind, name))
    {
        findings.push_back(UnreadableFile(NameKind, name));
        return;
    }
    const std::string device = LinkOf(wide);
    if (folders.logDevices && !device.empty() && !IsDeviceThere(device))
    {
        findings.push_back(
            {Severity::Error, NameKind.word, name,
             fmt::format("it is linked to the log device {}, which does not exist", device),
             fmt::format("norvctl name link \"{0}\" DEVICE, or norvctl name unlink \"{0}\"", name)});
    }
}

} // namespace

void CheckNames(const StoreFolders& folders, Findings& findings)
{
    if (!folders.logNames)
    {
        return;
    }
    std::vector<std::string> names = AllNames();
    TakeLeftOvers(NameKind, names, findings);
    for (const std::string& name : names)
    {
        CheckName(name, folders, findings);
    }
}

} // namespace norvctl
