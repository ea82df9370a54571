// The store as a C++ program sees it, through norvepa.hpp: an overview of a plant, several values changed at
// once or not at all, and being told of changes. The exit status is 0, 1 for a failure, or 2 for a misuse.
#include "norvepa.hpp"

#include <io.h>

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <span>
#include <string>
#include <string_view>

namespace
{

using Words = std::span<wchar_t* const>;

constexpr const wchar_t* Usage =
    L"usage: client_cpp overview                              prints the log devices and the log names\n"
    L"       client_cpp edit DEVICE PARAMETER VALUE...        changes all these values or, if one is "
    L"refused, none\n"
    L"       client_cpp watch DEVICE PARAMETER VALUE          changes a value, and tells what a watch hears "
    L"of it\n";

enum ExitStatus
{
    Done,
    Failed,
    Misused
};

// What isn't there is shown as such: an overview goes on.
std::wstring Shown(const norvepa::LogDevice& device, const wchar_t* parameter)
{
    return device.Get(parameter).value_or(L"-");
}

void PrintDevices()
{
    for (const std::wstring& name : norvepa::LogDevices())
    {
        const norvepa::LogDevice device(name);
        std::wprintf(L"%-24ls %-8ls %-8ls %9ls\n", name.c_str(), Shown(device, L"CP_TYPE").c_str(),
                     Shown(device, L"DeviceID").c_str(), Shown(device, L"baudrate").c_str());
    }
}

std::wstring LinkOf(const norvepa::LogName& name)
{
    const std::optional<norvepa::LogDevice> device = name.Linked().value();
    if (!device)
    {
        return L"not linked";
    }
    return device->Exists().value() ? device->name() : device->name() + L", which does not exist";
}

void PrintNames()
{
    for (const std::wstring& name : norvepa::LogNames())
    {
        std::wprintf(L"%-24ls -> %ls\n", name.c_str(), LinkOf(norvepa::LogName(name)).c_str());
    }
}

// A copy that isn't applied, because a value was refused, goes with its object.
void Edit(const norvepa::LogDevice& device, Words changes)
{
    norvepa::EditCopy copy = norvepa::EditCopy::Of(device).value();
    for (; changes.size() >= 2; changes = changes.subspan(2))
    {
        copy.Set(changes[0], changes[1]).value();
    }
    copy.Apply().value();
}

// A watch hears what this process changes, on whatever thread, and a moment later.
void WatchAChange(const norvepa::LogDevice& device, const std::wstring& parameter, const std::wstring& value)
{
    constexpr std::chrono::seconds patience{2};

    const norvepa::Watch watch = norvepa::Watch::Of(norvepa::Folder::LogDevices, device.name()).value();
    device.Set(parameter, value).value();
    if (watch.wait_for(patience))
    {
        std::wprintf(L"changed: %ls is %ls\n", parameter.c_str(), device.Get(parameter).value().c_str());
    }
    else
    {
        std::wprintf(L"nothing has changed: it was like that before\n");
    }
}

int Run(Words words)
{
    const std::wstring_view verb = words.empty() ? L"" : words[0];
    if (verb == L"overview" && words.size() == 1)
    {
        PrintDevices();
        std::wprintf(L"\n");
        PrintNames();
        return Done;
    }
    if (verb == L"edit" && words.size() >= 4 && words.size() % 2 == 0)
    {
        Edit(norvepa::LogDevice(words[1]), words.subspan(2));
        return Done;
    }
    if (verb == L"watch" && words.size() == 4)
    {
        WatchAChange(norvepa::LogDevice(words[1]), words[2], words[3]);
        return Done;
    }
    std::fputws(Usage, stderr);
    return Misused;
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    _setmode(_fileno(stdout), _O_U8TEXT); // names have letters of all alphabets
    _setmode(_fileno(stderr), _O_U8TEXT);
    try
    {
        return Run(Words(argv, static_cast<std::size_t>(argc)).subspan(argc > 0 ? 1 : 0));
    }
    catch (const std::exception& failure) // norvepa::Failure tells the export and the code
    {
        std::fwprintf(stderr, L"client_cpp: %hs\n", failure.what());
        return Failed;
    }
}
