#include "BareEngines.h"
#include "GoalGroups.h"
#include "OneValue.h"
#include "Stopwatch.h"
#include "Table.h"
#include "support/TemporaryFolder.h"

namespace norvepa::bench
{

void MeasureSets(GoalTable& goals)
{
    const PlantStore store(1);
    const std::string bytes = test::ReadBytes(store.devicePath(0));
    const std::wstring copy = store.folder() + L"\\copy.xml"; // of which the library knows nothing
    Alternating values;

    const auto [set, overwrite, flushed] =
        MedianNanosecondsInTurns([&] { WriteToLibrary(values.next()); }, [&] { OverwriteFile(copy, bytes); },
                                 [&] { OverwriteFileAndFlush(copy, bytes); });

    const Table table("one value of 100 set", "to the set", set);
    table.Row("LogDeviceSetValueBL", set);
    table.Row("the file's bytes overwritten", overwrite);
    table.Row("the file's bytes overwritten and flushed", flushed);
    goals.Told("LogDeviceSetValueBL", "ms", set / 1e6);
    goals.Told("the file's bytes overwritten", "ms", overwrite / 1e6);
    goals.Told("the file's bytes overwritten and flushed", "ms", flushed / 1e6);
    goals.Told("flushing alone : LogDeviceSetValueBL", "  ", (flushed - overwrite) / set);
}

} // namespace norvepa::bench
