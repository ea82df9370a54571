#include "BareEngines.h"
#include "DeviceWalks.h"
#include "FileAge.h"
#include "GoalGroups.h"
#include "OneValue.h"
#include "Stopwatch.h"
#include "Table.h"
#include "notify/directoryCache.h"

#include <stdexcept>
#include <string>

namespace norvepa::bench
{

namespace
{

constexpr std::size_t ParametersOfASmallDevice = 10;

// Log devices that have been read once since their last change became certain.
class ReadDevices
{
public:
    explicit ReadDevices(std::size_t devices) : m_store(devices, ParametersOfASmallDevice), m_devices(devices)
    {
        FillRegistry();
        for (std::size_t number = 0; number < devices; ++number)
        {
            WaitUntilOld(m_store.devicePath(number));
        }
        LookUpAnew(devices);
    }
    ReadDevices(const ReadDevices&) = delete;
    ReadDevices& operator=(const ReadDevices&) = delete;
    ~ReadDevices() { deinitWatchDirectories(); } // lets go of the folders, which are about to be removed

    [[nodiscard]] std::size_t size() const { return m_devices; }

    void PassOverAll() const
    {
        for (std::size_t number = 0; number < m_devices; ++number)
        {
            static_cast<void>(CountNodesWithXmlLite(m_store.devicePath(number)));
        }
    }

private:
    PlantStore m_store;
    std::size_t m_devices;
};

// In nanoseconds: all of a walk, and one of the registry reads that took turns with its steps.
struct WalkCosts
{
    double walk = 0;
    double registryRead = 0;
};

WalkCosts Walk(std::size_t devices)
{
    constexpr std::uint64_t ReadsOfATurn = 10;
    const auto readRegistry = [] { Expect(ReadWithRegistry(RegistryKey, lastParameter), LastValue); };

    WalkCosts costs;
    std::uint32_t index = 0;
    for (bool isThere = true; isThere; ++index)
    {
        costs.walk += NanosecondsOfRuns([&] { isThere = IsThereADevice(index); }, 1);
        costs.registryRead += NanosecondsOfRuns(readRegistry, ReadsOfATurn) / ReadsOfATurn;
    }
    if (index != devices + 1)
    {
        throw std::runtime_error("another number than expected");
    }
    costs.registryRead /= index;
    return costs;
}

double MedianWalk(const ReadDevices& devices)
{
    std::array<double, MedianRounds> rounds;
    std::generate(rounds.begin(), rounds.end(), [&] { return Walk(devices.size()).walk; });
    return Median(rounds);
}

std::string Devices(std::size_t number)
{
    return std::to_string(number) + " log devices";
}

// Each step begins anew and looks at every log device up to its own.
double FilesLookedAt(std::size_t devices)
{
    return static_cast<double>(devices * (devices + 1)) / 2;
}

// 15 s for 1,000 log devices.
double LimitSeconds(std::size_t devices)
{
    return 15 * FilesLookedAt(devices) / FilesLookedAt(1000);
}

void MeasureWalk(GoalTable& goals, const ReadDevices& devices, double tenthWalk)
{
    const WalkCosts costs = Walk(devices.size());
    const double look = costs.walk / FilesLookedAt(devices.size());
    const std::string walk = "walk of " + Devices(devices.size());
    const std::string smallWalk = "walk of " + Devices(devices.size() / 10);

    const Table table("LogDeviceGetEnumBL over log devices of 10 parameters", "to the registry",
                      costs.registryRead);
    table.Row(smallWalk.c_str(), tenthWalk);
    table.Row(walk.c_str(), costs.walk);
    table.Row("  a file looked at", look);
    table.Row("RegGetValueW with open and close", costs.registryRead);
    goals.Ratio("LogDeviceGetEnumBL, a file looked at : registry read", 0.1, look / costs.registryRead);
    goals.Amount(walk, "s", LimitSeconds(devices.size()), costs.walk / 1e9);
    goals.Ratio(walk + " : " + smallWalk, 110, costs.walk / tenthWalk);
}

void MeasureLookUp(GoalTable& goals, const ReadDevices& devices)
{
    const auto [lookUp, passes] =
        MedianNanosecondsInTurns([&] { LookUpAnew(devices.size()); }, [&] { devices.PassOverAll(); });

    const Table table("log devices looked up by identity, anew", "to the passes", passes);
    table.Row(Devices(devices.size()).c_str(), lookUp);
    table.Row("bare passes of XmlLite over as many files", passes);
    goals.Ratio("first look-up by identity among " + Devices(devices.size()) + " : as many bare passes", 0.3,
                lookUp / passes);
}

} // namespace

void MeasureWalks(GoalTable& goals, std::size_t devices)
{
    const double tenthWalk = MedianWalk(ReadDevices(devices / 10));
    const ReadDevices all(devices);
    MeasureLookUp(goals, all);
    MeasureWalk(goals, all, tenthWalk);
}

} // namespace norvepa::bench
