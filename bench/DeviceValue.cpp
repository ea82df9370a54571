// What one value of a log device of 100 parameters costs, beside what one would use instead: a bare pass of
// the pull engine to the same entry, a registry key, an INI file, a document with a path.

#include "BareEngines.h"
#include "OneValue.h"
#include "Stopwatch.h"
#include "Table.h"
#include "norvepa.h"

#include <windows.h>
#include <objbase.h>

#include <array>
#include <stdexcept>

namespace
{

using namespace norvepa;
using namespace norvepa::bench;

std::wstring ReadSectionFromLibrary()
{
    std::array<wchar_t, 64> value{};
    auto length = static_cast<uint32_t>(value.size());
    if (LogDeviceGetValueExBL(device.c_str(), L"LocalSettings", lastParameter.c_str(), value.data(),
                              &length) != PGSP_OK)
    {
        throw std::runtime_error("not read");
    }
    return value.data();
}

void MeasureReads(const PlantStore& store)
{
    const std::wstring file = store.devicePath(0);
    const std::wstring ini = IniFile(store);
    FillRegistry();

    const double library = MedianNanoseconds([] { Expect(ReadFromLibrary(), LastValue); });
    const Table table("one value of a log device of 100 parameters, warm", "to the library", library);
    table.Row("LogDeviceGetValueBL", library);
    table.Row("LogDeviceGetValueExBL with its section",
              MedianNanoseconds([] { Expect(ReadSectionFromLibrary(), LastValue); }));
    table.Row("bare pass of XmlLite to the same entry",
              MedianNanoseconds([&] { Expect(ReadWithXmlLite(file, lastParameter), LastValue); }));
    table.Row("RegGetValueW with open and close",
              MedianNanoseconds([&] { Expect(ReadWithRegistry(RegistryKey, lastParameter), LastValue); }));
    table.Row("GetPrivateProfileStringW",
              MedianNanoseconds([&] { Expect(ReadWithPrivateProfile(ini, lastParameter), LastValue); }));
    table.Row("MSXML: load, path, text",
              MedianNanoseconds([&] { Expect(ReadWithMsxml(file, lastParameter), LastValue); }));
}

void MeasureWrites(const PlantStore& store)
{
    const std::wstring file = store.devicePath(0);
    Alternating values;
    const double library = MedianNanoseconds([&] { WriteToLibrary(values.next()); });
    const Table table("one value set, checked against the catalogue and announced", "to the library",
                      library);
    table.Row("LogDeviceSetValueBL", library);
    table.Row("MSXML: load, path, change, save",
              MedianNanoseconds([&] { WriteWithMsxml(file, lastParameter, values.next()); }));
}

} // namespace

int main()
{
    CoInitialize(nullptr);
    {
        const PlantStore store(1);
        MeasureReads(store);
        MeasureWrites(store);
    }
    CoUninitialize();
    return 0;
}
