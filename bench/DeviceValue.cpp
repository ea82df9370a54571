// What one value of a log device of 100 parameters costs, beside what one would use instead: a bare pass of
// the pull engine to the same entry, a registry key, an INI file, a document with a path.

#include "BareEngines.h"
#include "PlantStore.h"
#include "Stopwatch.h"
#include "Table.h"
#include "norvepa.h"
#include "support/TemporaryFolder.h"

#include <windows.h>
#include <objbase.h>

#include <array>
#include <stdexcept>

namespace
{

using namespace norvepa;
using namespace norvepa::bench;

constexpr wchar_t RegistryKey[] = L"SOFTWARE\\Bench\\Anlage 0";

const std::wstring device = PlantStore::deviceName(0);
const std::wstring lastParameter = ParameterName(ParametersOfADevice - 1);

std::wstring IniFile(const PlantStore& store)
{
    std::string text = "[LocalSettings]\r\n";
    for (std::size_t number = 0; number < ParametersOfADevice; ++number)
    {
        text += test::ToUtf8(ParameterName(number)) + "=" + std::to_string(number) + "\r\n";
    }
    std::wstring file = store.folder() + L"\\device.ini";
    test::WriteBytes(file, text);
    return file;
}

void FillRegistry()
{
    for (std::size_t number = 0; number < ParametersOfADevice; ++number)
    {
        test::SetMachineText(RegistryKey, ParameterName(number), std::to_wstring(number));
    }
}

void Expect(const std::wstring& value, const wchar_t* expected)
{
    if (value != expected)
    {
        throw std::runtime_error("another value than expected");
    }
}

std::wstring ReadFromLibrary()
{
    std::array<wchar_t, 64> value{};
    auto length = static_cast<uint32_t>(value.size());
    if (LogDeviceGetValueBL(device.c_str(), lastParameter.c_str(), value.data(), &length) != PGSP_OK)
    {
        throw std::runtime_error("not read");
    }
    return value.data();
}

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

void WriteToLibrary(const std::wstring& value)
{
    if (LogDeviceSetValueBL(device.c_str(), lastParameter.c_str(), value.c_str()) != PGSP_OK)
    {
        throw std::runtime_error("not set");
    }
}

// Another value each time, so that each write is one.
class Alternating
{
public:
    const std::wstring& next()
    {
        m_second = !m_second;
        return m_second ? m_values[1] : m_values[0];
    }

private:
    std::array<std::wstring, 2> m_values{L"500", L"501"};
    bool m_second = false;
};

void MeasureReads(const PlantStore& store)
{
    const std::wstring file = store.devicePath(0);
    const std::wstring ini = IniFile(store);
    FillRegistry();

    const double library = MedianNanoseconds([] { Expect(ReadFromLibrary(), L"99"); });
    const Table table("one value of a log device of 100 parameters, warm", "to the library", library);
    table.Row("LogDeviceGetValueBL", library);
    table.Row("LogDeviceGetValueExBL with its section",
              MedianNanoseconds([] { Expect(ReadSectionFromLibrary(), L"99"); }));
    table.Row("bare pass of XmlLite to the same entry",
              MedianNanoseconds([&] { Expect(ReadWithXmlLite(file, lastParameter), L"99"); }));
    table.Row("RegGetValueW with open and close",
              MedianNanoseconds([&] { Expect(ReadWithRegistry(RegistryKey, lastParameter), L"99"); }));
    table.Row("GetPrivateProfileStringW",
              MedianNanoseconds([&] { Expect(ReadWithPrivateProfile(ini, lastParameter), L"99"); }));
    table.Row("MSXML: load, path, text",
              MedianNanoseconds([&] { Expect(ReadWithMsxml(file, lastParameter), L"99"); }));
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
