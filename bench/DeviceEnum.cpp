// What a walk over all log devices costs by their number. Each call begins anew and reads every log device up
// to its index, so that a walk grows with the square of the number: the last one takes minutes. Beside it the
// look-up by identity that comes first behind a change of the folder, which reads each log device once.

#include "PlantStore.h"
#include "Stopwatch.h"
#include "Table.h"
#include "norvepa.h"
#include "notify/DeviceIdIndex.h"
#include "notify/directoryCache.h"

#include <windows.h>
#include <objbase.h>

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace
{

using namespace norvepa;
using namespace norvepa::bench;

constexpr std::size_t ParametersOfASmallDevice = 10;

void Walk(std::size_t devices)
{
    std::array<wchar_t, 260> name{};
    std::size_t found = 0;
    for (uint32_t index = 0;; ++index)
    {
        auto length = static_cast<uint32_t>(name.size());
        const int32_t result = LogDeviceGetEnumBL(nullptr, index, name.data(), &length);
        if (result != PGSP_OK)
        {
            break;
        }
        ++found;
    }
    if (found != devices)
    {
        throw std::runtime_error("another number than expected");
    }
}

void LookUpLast(std::size_t devices)
{
    std::array<wchar_t, 260> name{};
    std::array<wchar_t, 260> unit{};
    auto nameLength = static_cast<uint32_t>(name.size());
    auto unitLength = static_cast<uint32_t>(unit.size());
    const auto last = static_cast<uint32_t>(devices - 1);
    if (LogDeviceGetEnumByDeviceIdBL(L"AFK220", last, name.data(), &nameLength, unit.data(), &unitLength) !=
        PGSP_OK)
    {
        throw std::runtime_error("a log device isn't found by its board");
    }
}

struct Costs
{
    double walk;
    double lookUp;
};

// One round: the longest walk takes longer than the clock needs.
Costs NanosecondsOf(std::size_t devices)
{
    const PlantStore store(devices, ParametersOfASmallDevice);
    deviceIdIndex.MarkStale(); // what it knows is of the last store
    const double lookUp = NanosecondsOfRuns([=] { LookUpLast(devices); }, 1);
    const double walk = NanosecondsOfRuns([=] { Walk(devices); }, 1);
    deinitWatchDirectories(); // lets go of the folders, which are about to be removed
    return {walk, lookUp};
}

} // namespace

int main()
{
    CoInitialize(nullptr);
    constexpr std::array<std::size_t, 3> numbers{10, 100, 1000};
    const Costs ten = NanosecondsOf(numbers[0]);
    const Table table("LogDeviceGetEnumBL walked over log devices of 10 parameters", "to 10 devices",
                      ten.walk);
    table.Row("10 log devices", ten.walk);
    table.Row("10 log devices, first look-up by identity", ten.lookUp);
    for (std::size_t i = 1; i < numbers.size(); ++i)
    {
        const Costs costs = NanosecondsOf(numbers[i]);
        const auto files = static_cast<double>(numbers[i] * (numbers[i] + 1));
        const std::string devices = std::to_string(numbers[i]) + " log devices";
        table.Row(devices.c_str(), costs.walk);
        table.Row((devices + ", first look-up by identity").c_str(), costs.lookUp);
        std::printf("    %.1f us a file read of the walk\n", costs.walk / 1000 / files * 2);
    }
    CoUninitialize();
    return 0;
}
