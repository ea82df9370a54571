#include "Commands.h"
#include "Example.h"
#include "Result.h"
#include "StoreWatchCommand.h"
#include "Text.h"
#include "WatchEvents.h"
#include "norvepa.h"

#include <iostream>

#include <chrono>
#include <fmt/chrono.h>
#include <fmt/format.h>
#include <limits>
#include <memory>
#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr double LongestTimeout = 4'000'000; // seconds, so that the milliseconds fit 32 bits

struct Arguments
{
    std::string folder;
    std::string file;
    unsigned count = std::numeric_limits<unsigned>::max();
    double timeout = 0; // seconds; 0 waits for ever
};

// The first of the names that no other watch has.
struct OwnedEvent
{
    Event event;
    std::wstring name;
};

OwnedEvent TakeEvent(const Arguments& arguments)
{
    for (const std::wstring& name : WatchEventNames(ToWide(arguments.folder), ToWide(arguments.file)))
    {
        Event event(CreateEventW(nullptr, FALSE, FALSE, name.c_str()));
        if (event && GetLastError() != ERROR_ALREADY_EXISTS)
        {
            return {std::move(event), name};
        }
    }
    throw std::runtime_error("there are as many watches of this already as there can be");
}

void Print(const Report& report, const Arguments& arguments, const char* what)
{
    const std::string time = fmt::format("{:%H:%M:%S}", fmt::localtime(std::time(nullptr)));
    const std::string subject =
        arguments.file.empty() ? arguments.folder : arguments.folder + ", " + arguments.file;
    if (report.json)
    {
        const Json line = {
            {"time", time}, {"event", what}, {"folder", arguments.folder}, {"file", arguments.file}};
        std::cout << line.dump() << std::endl;
    }
    else
    {
        std::cout << fmt::format("{} {} {}", time, what, subject) << std::endl;
    }
}

void Watch(const Report& report, const Arguments& arguments)
{
    const OwnedEvent owned = TakeEvent(arguments);
    const std::wstring folder = ToWide(arguments.folder);
    const std::wstring file = ToWide(arguments.file);
    Require(RegisterNotification(folder.c_str(), file.c_str(), owned.name.c_str()), arguments.folder);

    Print(report, arguments, "watching");
    const auto milliseconds = arguments.timeout > 0 ? static_cast<DWORD>(arguments.timeout * 1000) : INFINITE;
    for (unsigned seen = 0; seen < arguments.count; ++seen)
    {
        if (WaitForSingleObject(owned.event.get(), milliseconds) != WAIT_OBJECT_0)
        {
            throw std::runtime_error(
                fmt::format("no change of {} within {} s", arguments.folder, arguments.timeout));
        }
        Print(report, arguments, "changed");
    }
    UnRegisterNotification(folder.c_str(), file.c_str(), owned.name.c_str());
}

void WatchFolderOrStore(const Report& report, const Arguments& arguments)
{
    if (arguments.folder.empty())
    {
        WatchStore(report, {arguments.count, arguments.timeout});
    }
    else
    {
        Watch(report, arguments);
    }
}

} // namespace

void AddWatchCommand(CLI::App& app, const Report& report)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* const watch = app.add_subcommand(
        "watch", "print a line for each change of the store, whoever makes it; or for each that a norvctl "
                 "makes to a folder, or to one file of it");
    watch->add_option("FOLDER", arguments->folder, "the folder word; without it, the whole store")
        ->check(CLI::IsMember({"LogDevices", "LogNames", "meta"}));
    watch->add_option("OBJECT", arguments->file, "one log device, log name or template");
    watch->add_option("--count", arguments->count, "end after so many changes")->type_name("N");
    watch
        ->add_option("--timeout", arguments->timeout,
                     "give up when so many seconds pass without a change; 0 never does")
        ->check(CLI::Range(0.0, LongestTimeout))
        ->type_name("SECONDS");
    watch->callback([=, &report] { WatchFolderOrStore(report, *arguments); });
    ShowExample(*watch, "norvctl watch");
    ShowExample(*watch, "norvctl --json watch --count 1 --timeout 60");
    ShowExample(*watch, "norvctl watch LogDevices Kesselhaus");
}

} // namespace norvctl
