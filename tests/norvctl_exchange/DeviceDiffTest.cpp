#include "support/Norvctl.h"

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlDeviceDiff : public Norvctl
{
protected:
    NorvctlDeviceDiff() { WriteBytes(LogDevicePath(L"Kopie"), ReadBytes(LogDevicePath(L"Kesselhaus"))); }

    void Edit(std::string_view from, std::string_view to) const
    {
        std::string bytes = ReadBytes(LogDevicePath(L"Kopie"));
        const std::size_t at = bytes.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        WriteBytes(LogDevicePath(L"Kopie"), bytes.replace(at, from.size(), to));
    }

    static ProgramEnd Diff(const Words& more = {})
    {
        Words words{L"device", L"diff", L"Kesselhaus", L"Kopie"};
        words.insert(words.end(), more.begin(), more.end());
        return RunNorvctl(words);
    }
};

TEST_F(NorvctlDeviceDiff, OfEqualsSaysNothing)
{
    const ProgramEnd end = Diff({L"--exit-code"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlDeviceDiff, TellsValuesBySectionAndSubdevice)
{
    Edit("1500000", "187500");
    Edit("Erdgas", "Biogas");
    Edit("<Parameter><Name>Abnahme</Name><Value>12.09.2019</Value></Parameter>", "");
    Edit("<Function>ShowFeldbusPage</Function>", "<Function>Seite</Function>");

    const ProgramEnd end = Diff();

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "LocalSettings\n"
                          "  baudrate: 1500000 -> 187500\n"
                          "SpareSection\n"
                          "  Abnahme: 12.09.2019 -> -\n"
                          "subdevices\\Brenner 1\n"
                          "  Medium: Erdgas -> Biogas\n"
                          "UserInterface64\n"
                          "  PropSheet: AuentalSeiten.dll,ShowFeldbusPage -> AuentalSeiten.dll,Seite\n");
}

TEST_F(NorvctlDeviceDiff, WithExitCodeEndsWithOneWhenTheyDiffer)
{
    Edit("1500000", "187500");

    EXPECT_EQ(Diff({L"--exit-code"}).exitCode, 1U);
}

TEST_F(NorvctlDeviceDiff, WithExitCodeEndsWithTwoWhenTheyCantBeCompared)
{
    const ProgramEnd end = RunNorvctl({L"device", L"diff", L"Kesselhaus", L"Nirgends", L"--exit-code"});

    EXPECT_EQ(end.exitCode, 2U);
    EXPECT_THAT(end.error, HasSubstr("Nirgends: there is no such file (8503"));
}

TEST_F(NorvctlDeviceDiff, AsJsonIsAnArrayOfChanges)
{
    Edit("1500000", "187500");

    const json changes = json::parse(Diff({L"--json"}).output);

    EXPECT_EQ(
        changes,
        (json{{{"section", "LocalSettings"}, {"name", "baudrate"}, {"old", "1500000"}, {"new", "187500"}}}));
}

TEST_F(NorvctlDeviceDiff, ComparesSubdevices)
{
    const ProgramEnd end = RunNorvctl(
        {L"device", L"diff", L"Kesselhaus\\subdevices\\Brenner 1", L"Kopie\\subdevices\\Brenner 2"});

    EXPECT_EQ(end.output, "subdevice\n"
                          "  address: 12 -> 13\n"
                          "  station_name: BR-1 -> BR-2\n"
                          "  active: true -> false\n"
                          "  Medium: Erdgas -> Heiz\xC3\xB6l\n");
}

} // namespace
} // namespace norvepa::test
