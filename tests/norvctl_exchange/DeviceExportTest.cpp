#include "ImportScene.h"
#include "support/XmlFiles.h"

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;

class NorvctlDeviceExport : public NorvctlImport
{
};

TEST_F(NorvctlDeviceExport, BeginsWithWhatItIs)
{
    const ProgramEnd end = RunNorvctl({L"device", L"export", L"Kesselhaus"});

    EXPECT_THAT(end.rawOutput, StartsWith("{\n"
                                          "  \"format\": \"norvctl log device\",\n"
                                          "  \"version\": 1,\n"
                                          "  \"name\": \"Kesselhaus\",\n"
                                          "  \"board\": \"*AFK220\",\n"
                                          "  \"protocol\": \"L2\",\n"
                                          "  \"sections\": {\n"
                                          "    \"DeviceHeader\": {\n"
                                          "      \"Unit\": \"1\",\n"));
    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlDeviceExport, HoldsSectionsSubdevicesAndLinks)
{
    const Document document = Exported(L"Kesselhaus");

    EXPECT_EQ(document["sections"]["SpareSection"]["Revision"], "7");
    EXPECT_EQ(document["subdevices"]["Brenner 2"]["Medium"], "Heiz\xC3\xB6l");
    EXPECT_EQ(document["links"]["UserInterface64"]["DescText"], "AuentalTexte.dll,1001");
    EXPECT_EQ(document["links"]["UserInterface"]["PropSheet"], "AuentalSeiten.dll,ShowFeldbusPage32");
}

TEST_F(NorvctlDeviceExport, GathersTheValuesOfANameThatStandsThereSeveralTimes)
{
    WriteBytes(LogDevicePath(L"Doppelt"),
               LogDeviceFile(XmlContent().Element(
                   L"SpareSection", XmlContent().Text(L"Weg", L"1").Text(L"Ziel", L"A").Text(L"WEG", L"2"))));

    const Document document = Exported(L"Doppelt");

    EXPECT_EQ(document["sections"]["SpareSection"].dump(), R"({"Weg":["1","2"],"Ziel":"A"})");
}

TEST_F(NorvctlDeviceExport, OfWhatIsNotThereFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"export", L"Nirgends"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error, HasSubstr("Nirgends: there is no such file (8503"));
}

TEST_F(NorvctlDeviceExport, OfAFileThatIsDamagedFails)
{
    WriteBytes(LogDevicePath(L"Labor"), "<LogDevice><DeviceHeader></LogDevice>");

    const ProgramEnd end = RunNorvctl({L"device", L"export", L"Labor"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("Labor: the file cannot be opened or parsed (8508"));
}

} // namespace
} // namespace norvepa::test
