#include "DeviceWalks.h"
#include "FileAge.h"
#include "GoalGroups.h"
#include "OneValue.h"
#include "notify/directoryCache.h"

#include <windows.h>
#include <psapi.h>

#include <cstdio>
#include <stdexcept>
#include <string>

namespace norvepa::bench
{

namespace
{

// Committed for this process alone. The extended counters name it for what it is, but come empty under Wine.
double PrivateMegabytes()
{
    PROCESS_MEMORY_COUNTERS counters{};
    if (!K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) ||
        counters.PagefileUsage == 0)
    {
        throw std::runtime_error("the system doesn't tell of memory");
    }
    return static_cast<double>(counters.PagefileUsage) / (1 << 20);
}

} // namespace

// By identity, as each look-up reads all of them once: a walk by index would look at twelve million files.
void MeasureMemory(GoalTable& goals, std::size_t devices)
{
    const PlantStore store(devices);
    for (std::size_t number = 0; number < devices; ++number)
    {
        WaitUntilOld(store.devicePath(number));
    }
    Expect(ReadFromLibrary(), LastValue); // has the engines loaded, which aren't to count

    const double before = PrivateMegabytes();
    LookUpAnew(devices);
    const double once = PrivateMegabytes();
    LookUpAnew(devices);
    const double grown = PrivateMegabytes() - before;
    deinitWatchDirectories(); // lets go of the folders, which are about to be removed

    std::printf("\nprivate bytes: %.2f MB, grown by %.2f MB with the first look-up, by %.2f MB with both\n",
                before, once - before, grown);
    std::fflush(stdout);
    goals.Amount("private bytes, grown by reading " + std::to_string(devices) +
                     " log devices of 100 parameters twice",
                 "MB", 32, grown);
}

} // namespace norvepa::bench
