// What it costs to hand a log device of ten thousand parameters to its driver, beside a validated load of its
// file by the bare engine: what is there to be had for less is the walk and the records.

#include "BareEngines.h"
#include "BuildSettings.h"
#include "PlantStore.h"
#include "Stopwatch.h"
#include "Table.h"
#include "handover/DeviceOutline.h"
#include "norvepa.h"
#include "support/TemporaryFolder.h"

#include <windows.h>
#include <objbase.h>

#include <stdexcept>

namespace
{

using namespace norvepa;
using namespace norvepa::bench;

constexpr wchar_t DeviceName[] = L"Grossanlage";
constexpr std::size_t ParameterCount = 10'000;

std::string LargeDevice()
{
    test::XmlContent header;
    header.Int(L"Unit", L"1");
    test::XmlContent load;
    load.Element(L"section", L"DeviceHeader").Element(L"section", L"Busparameter");
    test::XmlContent content;
    content.Element(L"DeviceHeader", header)
        .Element(L"LocalSettings", Parameters(ParameterCount))
        .Element(L"Load", load);
    return test::LogDeviceFile(content, L"AFK220", L"L2");
}

void Expect(bool fulfilled, const char* what)
{
    if (!fulfilled)
    {
        throw std::runtime_error(what);
    }
}

void ReadForDriver()
{
    std::uint8_t* records = nullptr;
    std::uint32_t length = 0;
    Expect(norvDriverReadLogDevice(DeviceName, &records, &length) == PGSP_OK, "refused");
    Expect(length > ParameterCount * 10, "too few records");
    GlobalFree(records);
}

void Measure(const test::StoreRoots& roots)
{
    const std::wstring file = roots.logDevice(DeviceName);
    const std::wstring schema = roots.program() + L"\\Schemes\\Corvane.Device.Driver.Logdevice.xsd";
    const std::wstring namespaceUri = std::wstring(DriverNamespace) + L"/LogDevice";

    const auto [bare, driver] = MedianNanosecondsInTurns(
        [&] { ValidateWithMsxml(schema, namespaceUri, file); }, [] { ReadForDriver(); });

    const std::string bytes = test::ReadBytes(file);
    Document document;
    Expect(SUCCEEDED(document.Create()), "no document");
    document.LoadAsItStands();
    Expect(document.LoadBytes(bytes), "not loaded");
    const auto [look, walk] =
        MedianNanosecondsInTurns([&] { Expect(OutlineOf(std::string_view(bytes)).has_value(), "not plain"); },
                                 [&] { Expect(!OutlineOf(document).load.empty(), "nothing to load"); });

    const Table table("a log device of 10,000 parameters", "to the load", bare);
    table.Row("a validated load by the bare engine", bare);
    table.Row("norvDriverReadLogDevice", driver);
    table.Row("  of which the look for its parameters, at the bytes", look);
    table.Row("  which would be, asking the engine node by node", walk);
}

} // namespace

int main()
{
    CoInitialize(nullptr);
    {
        const test::StoreRoots roots;
        roots.FillWithSampleStore();
        test::WriteBytes(roots.logDevice(DeviceName), LargeDevice());
        Measure(roots);
    }
    CoUninitialize();
    return 0;
}
