// What a walk over all log devices costs by their number. Each call begins anew and reads every log device up
// to its index, so that a walk grows with the square of the number: the last one takes minutes.

#include "PlantStore.h"
#include "Stopwatch.h"
#include "Table.h"
#include "norvepa.h"
#include "notify/directoryCache.h"

#include <windows.h>
#include <objbase.h>

#include <array>
#include <cstdio>
#include <stdexcept>

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

// One round: the longest walk takes longer than the clock needs.
double NanosecondsOfAWalk(std::size_t devices)
{
    const PlantStore store(devices, ParametersOfASmallDevice);
    const double walk = NanosecondsOfRuns([=] { Walk(devices); }, 1);
    deinitWatchDirectories(); // lets go of the folders, which are about to be removed
    return walk;
}

} // namespace

int main()
{
    CoInitialize(nullptr);
    constexpr std::array<std::size_t, 3> numbers{10, 100, 1000};
    const double ten = NanosecondsOfAWalk(numbers[0]);
    const Table table("LogDeviceGetEnumBL walked over log devices of 10 parameters", "to 10 devices", ten);
    table.Row("10 log devices", ten);
    for (std::size_t i = 1; i < numbers.size(); ++i)
    {
        const double walk = NanosecondsOfAWalk(numbers[i]);
        const auto files = static_cast<double>(numbers[i] * (numbers[i] + 1));
        table.Row((std::to_string(numbers[i]) + " log devices").c_str(), walk);
        std::printf("    %.1f us a file read\n", walk / 1000 / files * 2);
    }
    CoUninitialize();
    return 0;
}
