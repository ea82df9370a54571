// What it costs to apply a profile of 20 values to a log device of 100 parameters, beside one value that is
// set: each of them is checked, written and announced like a caller's own.

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

constexpr std::size_t DependentParameters = 20;
constexpr std::array<const wchar_t*, 2> BaudRates{L"187500", L"500000"};
constexpr std::array<const wchar_t*, 2> Protocols{L"Profil A", L"Profil B"}; // the log device has the first

const std::wstring device = PlantStore::deviceName(0);

// What a choice gives to the parameters that depend on it: values that no other choice gives.
test::XmlContent Dependents(std::size_t choice)
{
    test::XmlContent values;
    for (std::size_t number = 0; number < DependentParameters; ++number)
    {
        values.Int(ParameterName(number), std::to_wstring(1000 * (choice + 1) + number));
    }
    return values;
}

std::string ProtocolWithProfiles(std::size_t protocol)
{
    test::XmlContent rates; // each as a value, and again as the section of what it gives
    for (const wchar_t* const rate : BaudRates)
    {
        rates.Element(L"Value", rate);
    }
    for (std::size_t rate = 0; rate < BaudRates.size(); ++rate)
    {
        rates.ParamSection(BaudRates[rate], Dependents(protocol * BaudRates.size() + rate));
    }
    test::XmlContent words;
    words.Element(L"section", L"LocalSettings").Element(L"ValueCollection", rates);
    test::XmlContent constraints = ParameterConstraints();
    constraints.ParamSection(L"baudrate", words);
    return test::ProtocolFile(test::XmlContent().Element(L"Constraints", constraints), Protocols[protocol]);
}

std::string DeviceWithBaudRate()
{
    test::XmlContent settings = Parameters(ParametersOfADevice - 1);
    settings.Int(L"baudrate", BaudRates[0]);
    return test::LogDeviceFile(test::XmlContent().Element(L"LocalSettings", settings), L"AFK220",
                               Protocols[0]);
}

void Expect(std::int32_t result)
{
    if (result != PGSP_OK)
    {
        throw std::runtime_error("refused");
    }
}

// One of two choices in turn, so that each one changes all that it can.
class Alternating
{
public:
    [[nodiscard]] std::size_t next() noexcept { return m_next = 1 - m_next; }

private:
    std::size_t m_next = 0;
};

void Measure()
{
    Alternating numbers;
    const auto setOne = [&] {
        const std::wstring value = std::to_wstring(500 + numbers.next());
        Expect(LogDeviceSetValueBL(device.c_str(), L"parameter_98", value.c_str()));
    };
    Alternating protocols;
    const auto applyProfile = [&] {
        const wchar_t* const protocol = Protocols[protocols.next()];
        Expect(PGSP_LogDeviceSetProfileRBL(device.c_str(), protocol, L"baudrate"));
    };
    Alternating rates;
    const auto setSpeed = [&] { Expect(LogDeviceSetBusparamsBL(device.c_str(), BaudRates[rates.next()])); };

    const auto [one, profile, speed] = MedianNanosecondsInTurns(setOne, applyProfile, setSpeed);
    const Table table("a profile of 20 values, on a log device of 100 parameters", "to one set", one);
    table.Row("LogDeviceSetValueBL", one);
    table.Row("PGSP_LogDeviceSetProfileRBL, which sets 20", profile);
    table.Row("LogDeviceSetBusparamsBL, which sets 21", speed);
}

} // namespace

int main()
{
    CoInitialize(nullptr);
    {
        const PlantStore store(1);
        for (std::size_t protocol = 0; protocol < Protocols.size(); ++protocol)
        {
            test::WriteBytes(store.protocolPath(Protocols[protocol]), ProtocolWithProfiles(protocol));
        }
        test::WriteBytes(store.devicePath(0), DeviceWithBaudRate());
        Sleep(2500); // until the times of the files tell for certain that they stay as they are
        Measure();
    }
    CoUninitialize();
    return 0;
}
