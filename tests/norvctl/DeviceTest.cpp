#include "support/Norvctl.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

class NorvctlDevice : public Norvctl
{
};

TEST_F(NorvctlDevice, ListTellsThemWithTypeBoardAndUnitAndLeavesHiddenOnesOut)
{
    const std::string output = OutputOfNorvctl({L"device", L"list"});

    EXPECT_THAT(output, HasSubstr("Leitwarte*_/VMDID            TCPIP      ANK300       3\n"));
    EXPECT_THAT(output, Not(HasSubstr("PC internal")));
}

TEST_F(NorvctlDevice, ListOfATypeTellsOnlyThose)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"list", L"--type", L"mpi"}),
              "Abf\u00FCllung Linie 1            MPI        *KQZA010     0\n"
              "Abf\u00FCllung Linie 2            MPI        KQZA010      1\n"
              "Presse#3                     MPI        AFK110       3\n");
}

TEST_F(NorvctlDevice, ListByBoardTellsOnlyThoseOfThisVeryIdentity)
{
    const json list = json::parse(OutputOfNorvctl({L"--json", L"device", L"list", L"--by-id", L"*afk110"}));

    EXPECT_EQ(
        list,
        (json::array(
            {{{"name", "R\u00FChrwerk Nord"}, {"type", "L2"}, {"deviceId", "*AFK110"}, {"unit", "1"}}})));
}

TEST_F(NorvctlDevice, TypeAndBoardExcludeEachOther)
{
    const ProgramEnd end = RunNorvctl({L"device", L"list", L"--type", L"MPI", L"--by-id", L"AFK110"});

    EXPECT_EQ(end.exitCode, 2U);
    EXPECT_THAT(end.error, HasSubstr("excludes"));
}

TEST_F(NorvctlDevice, ShowTellsAllValues)
{
    const json shown = json::parse(OutputOfNorvctl({L"--json", L"device", L"show", L"Presse#3"}));

    EXPECT_EQ(shown.at("device"), "Presse#3");
    EXPECT_EQ(shown.at("values").at("Unit"), "3");
    EXPECT_EQ(shown.at("values").at("CP_TYPE"), "MPI");
}

TEST_F(NorvctlDevice, GetTellsAValueOrTheDefaultOfItsCatalogue)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Kesselhaus", L"baudrate"}), "1500000\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Abf\u00FCllung Linie 2", L"highest_adr"}), "126\n");
}

TEST_F(NorvctlDevice, GetFromASectionKnowsNoDefault)
{
    const ProgramEnd end =
        RunNorvctl({L"device", L"get", L"Waage Rampe 2", L"line_resistance", L"--section", L"DeviceHeader"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("8513 PGSP_ERR_PARAM_NOT_FOUND"));
}

TEST_F(NorvctlDevice, SetStoresAnAllowedValue)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"baudrate", L"187500"}),
              "set Kesselhaus, baudrate\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Kesselhaus", L"baudrate"}), "187500\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"baudrate", L"187500"}),
              "unchanged Kesselhaus, baudrate\n");
}

TEST_F(NorvctlDevice, SetIsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"LogDevices", L"Kesselhaus", L"--count", L"1", L"--timeout", L"60"});

    const std::string output = OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"ttr", L"60001"});

    EXPECT_EQ(output, "set Kesselhaus, ttr\n");
    EXPECT_THAT(watch.Finish().output, HasSubstr("changed LogDevices"));
}

struct Refused
{
    const char* name;
    std::wstring device;
    std::wstring parameter;
    std::wstring value;
    const char* words;
};

void PrintTo(const Refused& refused, std::ostream* stream)
{
    *stream << refused.name;
}

class NorvctlRefusal : public NorvctlDevice, public testing::WithParamInterface<Refused>
{
};

TEST_P(NorvctlRefusal, TellsTheLimitsAndLeavesTheFileAsItWas)
{
    const Refused& refused = GetParam();
    const std::string before = ReadBytes(LogDevicePath(refused.device));

    const ProgramEnd end = RunNorvctl({L"device", L"set", refused.device, refused.parameter, refused.value});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error, HasSubstr(refused.words));
    EXPECT_EQ(ReadBytes(LogDevicePath(refused.device)), before);
}

INSTANTIATE_TEST_SUITE_P(
    Values, NorvctlRefusal,
    testing::Values(Refused{"NotInTheList", L"Kesselhaus", L"baudrate", L"12345",
                            "(8050 PGSP_NOT_IN_LIST): allowed are 9600, 19200, 93750,"},
                    Refused{"UnderTheMinimum", L"Kesselhaus", L"ttr", L"255",
                            "(8054 PGSP_SET_VAL_LESS_THAN_MIN): allowed are 256 to 16777215\n"},
                    Refused{"OverTheMaximum", L"Kesselhaus", L"watchdog", L"30001",
                            "(8056 PGSP_SET_VAL_BIGGER_THAN_MAX): allowed are 10 to 30000 in steps of 10\n"},
                    Refused{"OffTheStep", L"Kesselhaus", L"watchdog", L"15",
                            "(8058 PGSP_NOT_IN_STEP): allowed are 10 to 30000 in steps of 10\n"},
                    Refused{"NotABool", L"Waage Rampe 2", L"hw_handshake", L"1",
                            "(8052 PGSP_NOT_A_BOOL): allowed are true, false\n"},
                    Refused{"AProtectedAttribute", L"Kesselhaus", L"DeviceID", L"AFK110",
                            "Kesselhaus, DeviceID: there is no place to store the parameter (8514"}),
    [](const auto& refused) { return refused.param.name; });

TEST_F(NorvctlDevice, UnsetRemovesWhatTheCatalogueGivesASectionFor)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"unset", L"Waage Rampe 2", L"parity"}),
              "unset Waage Rampe 2, parity\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Waage Rampe 2", L"parity"}), "gerade\n"); // the default
}

TEST_F(NorvctlDevice, OfAMissingNameFailsForEveryVerb)
{
    for (const Words& words :
         {Words{L"device", L"show", L"gone"}, Words{L"device", L"get", L"gone", L"any"},
          Words{L"device", L"set", L"gone", L"any", L"1"}, Words{L"device", L"unset", L"gone", L"any"}})
    {
        const ProgramEnd end = RunNorvctl(words);

        EXPECT_EQ(end.exitCode, 1U);
        EXPECT_EQ(end.output, "");
        EXPECT_THAT(end.error, HasSubstr("norvctl: gone"));
    }
}

} // namespace
} // namespace norvepa::test
