#include "ExamplesScene.h"

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;

class ClientCpp : public Examples
{
protected:
    static ProgramEnd Client(const Words& arguments) { return Run(L"client_cpp.exe", arguments); }
};

TEST_F(ClientCpp, PrintsAnOverviewOfThePlant)
{
    const ProgramEnd end = Client({L"overview"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(end.output, HasSubstr("F\u00F6rderb\u00E4nder             L2       AFK220    12000000\n"));
    EXPECT_THAT(end.output, HasSubstr("Labor                    TCPIP    *ANK300          -\n"));
    EXPECT_THAT(end.output, HasSubstr("Kessel#1                 -> Kesselhaus\n"));
    EXPECT_THAT(end.output, HasSubstr("Altanlage                -> Verdampfer alt, which does not exist\n"));
    EXPECT_THAT(end.output, HasSubstr("Lagerhaus                -> not linked\n"));
    EXPECT_EQ(end.error, "");
}

TEST_F(ClientCpp, FailsWithoutAStore)
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data");

    const ProgramEnd end = Client({L"overview"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "client_cpp: LogNameGetEnumBL: 8517 PGSP_ERR_FOLDER_NOT_FOUND\n");
}

TEST_F(ClientCpp, ChangesSeveralValuesAtOnce)
{
    const ProgramEnd end =
        Client({L"edit", L"Kesselhaus", L"watchdog", L"300", L"station_name", L"Kessel S\u00FCd"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Kesselhaus", L"watchdog"}), "300\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Kesselhaus", L"station_name"}), "Kessel S\u00FCd\n");
}

TEST_F(ClientCpp, ChangesNothingWhenOneValueIsRefused)
{
    const std::string before = ReadBytes(LogDevicePath(L"Kesselhaus"));

    const ProgramEnd end = Client({L"edit", L"Kesselhaus", L"station_name", L"x", L"watchdog", L"15"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "client_cpp: LogDeviceSetValueBL: 8058 PGSP_NOT_IN_STEP\n");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Kesselhaus")), before);
    EXPECT_EQ(OutputOfNorvctl({L"device", L"edit", L"list"}), "\n");
}

TEST_F(ClientCpp, TellsWhatAWatchHears)
{
    const ProgramEnd end = Client({L"watch", L"Kesselhaus", L"watchdog", L"300"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "changed: watchdog is 300\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(ClientCpp, TellsThatAWatchHearsNothing)
{
    const ProgramEnd end = Client({L"watch", L"Kesselhaus", L"watchdog", L"200"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "nothing has changed: it was like that before\n");
}

TEST_F(ClientCpp, TellsHowItIsUsed)
{
    for (const Words& words : {Words{}, Words{L"overview", L"x"}, Words{L"edit", L"Kesselhaus"},
                               Words{L"edit", L"Kesselhaus", L"watchdog"}, Words{L"watch", L"Kesselhaus"}})
    {
        const ProgramEnd end = Client(words);

        EXPECT_EQ(end.exitCode, 2U);
        EXPECT_EQ(end.output, "");
        EXPECT_THAT(end.error, StartsWith("usage: client_cpp overview "));
    }
}

} // namespace
} // namespace norvepa::test
