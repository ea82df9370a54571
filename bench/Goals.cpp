// What the library is to be as fast as, measured in one run: the last table says of each goal whether it is
// met. Ends with 0 either way, for times are the machine's as well.
//
//     goals_bench [DEVICES]    how many log devices are walked: 1,000 unless told otherwise, and 10 at least

#include "GoalGroups.h"

#include <windows.h>
#include <objbase.h>

#include <cstdio>
#include <cstdlib>

namespace
{

using namespace norvepa::bench;

constexpr std::size_t FewestDevices = 10; // a tenth of them is walked as well

void Measure(std::size_t devices)
{
    GoalTable goals;
    MeasureMemory(goals, 5 * devices);
    MeasureAnswers(goals);
    MeasureReads(goals);
    MeasureWalks(goals, devices);
    MeasureParsing(goals);
    MeasureSets(goals);
    goals.Print();
}

} // namespace

int main(int count, char** arguments)
{
    const std::size_t devices = count > 1 ? std::strtoul(arguments[1], nullptr, 10) : 1000;
    if (devices < FewestDevices)
    {
        std::fputs("usage: goals_bench [DEVICES], 10 at least\n", stderr);
        return 1;
    }

    CoInitialize(nullptr);
    Measure(devices);
    CoUninitialize();
    return 0;
}
