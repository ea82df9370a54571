#include "ExamplesScene.h"

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;

class ClientC : public Examples
{
protected:
    static ProgramEnd Client(const Words& arguments) { return Run(L"client_c.exe", arguments); }
};

TEST_F(ClientC, PrintsAValue)
{
    const ProgramEnd end = Client({L"get", L"Kesselhaus", L"bus_termination"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "120 \u03A9\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(ClientC, PrintsAValueOfAnyLength)
{
    const std::wstring value = std::wstring(2'000, L'\u00E4') + std::wstring(8'000, L'x');
    OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"Vermerk", value});

    EXPECT_EQ(Client({L"get", L"Kesselhaus", L"Vermerk"}).output, ToUtf8(value) + "\n");
}

TEST_F(ClientC, TellsTheCodeOfAFailure)
{
    const ProgramEnd missing = Client({L"get", L"K\u00E4se", L"baudrate"});
    const ProgramEnd tooLong = Client({L"get", std::wstring(300, L'#'), L"baudrate"});

    EXPECT_EQ(missing.exitCode, 1U);
    EXPECT_EQ(missing.output, "");
    EXPECT_EQ(missing.error, "client_c: K\u00E4se: LogDeviceGetValueBL answers 8012\n");
    EXPECT_EQ(tooLong.exitCode, 1U);
    EXPECT_THAT(tooLong.error, HasSubstr("LogDeviceGetValueBL answers "));
}

TEST_F(ClientC, PrintsWhatTheCatalogueSays)
{
    const ProgramEnd watchdog = Client({L"allowed", L"Kesselhaus", L"watchdog"});

    EXPECT_EQ(watchdog.exitCode, 0U);
    EXPECT_THAT(watchdog.output, StartsWith("  type     int\n"
                                            "  min      10\n"
                                            "  max      30000\n"
                                            "  step     10\n"));
    EXPECT_EQ(watchdog.error, "");
    EXPECT_EQ(Client({L"allowed", L"gone", L"watchdog"}).error,
              "client_c: gone: LogDeviceExistBL answers 8503\n");
}

TEST_F(ClientC, SetsAValueAndHearsOfIt)
{
    const ProgramEnd end = Client({L"set", L"Kesselhaus", L"watchdog", L"300"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "announced: watchdog of Kesselhaus is now 300\n");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Kesselhaus", L"watchdog"}), "300\n");
}

TEST_F(ClientC, HearsNothingOfAValueThatWasTheSame)
{
    const ProgramEnd end = Client({L"set", L"Kesselhaus", L"watchdog", L"200"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "set; nothing was announced, so it was like that before\n");
}

TEST_F(ClientC, ExplainsARefusalByTheCatalogue)
{
    const ProgramEnd step = Client({L"set", L"Kesselhaus", L"watchdog", L"15"});
    const ProgramEnd list = Client({L"set", L"Presse#3", L"l4_timeout", L"4000"});

    EXPECT_EQ(step.exitCode, 1U);
    EXPECT_EQ(step.output, "");
    EXPECT_THAT(step.error, StartsWith("client_c: 15 is refused; the catalogue says of watchdog:\n"));
    EXPECT_THAT(step.error, HasSubstr("  step     10\n"));
    EXPECT_THAT(step.error, testing::EndsWith("client_c: Kesselhaus: LogDeviceSetValueBL answers 8058\n"));
    EXPECT_EQ(list.exitCode, 1U);
    EXPECT_THAT(list.error, HasSubstr("  value    2000/2 s\n"));
    EXPECT_THAT(list.error, HasSubstr("answers 8050"));
}

TEST_F(ClientC, TellsHowItIsUsed)
{
    for (const Words& words : {Words{}, Words{L"get"}, Words{L"set", L"Kesselhaus", L"watchdog"},
                               Words{L"nix", L"Kesselhaus", L"watchdog"}})
    {
        const ProgramEnd end = Client(words);

        EXPECT_EQ(end.exitCode, 2U);
        EXPECT_EQ(end.output, "");
        EXPECT_THAT(end.error, StartsWith("usage: client_c get DEVICE PARAMETER "));
    }
}

} // namespace
} // namespace norvepa::test
