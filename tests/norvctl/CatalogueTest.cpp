#include "support/Norvctl.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::Contains;
using testing::HasSubstr;

class NorvctlBoard : public Norvctl
{
};

class NorvctlProtocol : public Norvctl
{
};

TEST_F(NorvctlBoard, ListTellsThemByDeviceIdWithProtocolAndName)
{
    EXPECT_EQ(OutputOfNorvctl({L"board", L"list"}), "AFK110           MPI        Auental Feldbuskarte 110\n"
                                                    "*AFK220          L2         Auental Feldbuskarte 220\n"
                                                    "ANK300           TCPIP      Auental Netzkarte 300\n"
                                                    "ASK040           SERIAL     Auental Seriellkarte 40\n"
                                                    "KQZA010          MPI        Koppelkabel KQZA010\n");
}

TEST_F(NorvctlBoard, ListAsJsonIsAnArrayOfObjects)
{
    const json list = json::parse(OutputOfNorvctl({L"--json", L"board", L"list"}));

    EXPECT_EQ(list.size(), 5U);
    EXPECT_THAT(
        list, Contains(json{{"deviceId", "*AFK220"}, {"type", "L2"}, {"name", "Auental Feldbuskarte 220"}}));
}

TEST_F(NorvctlBoard, ShowTellsItsValuesAndTheDefaultsOfParameters)
{
    const json shown = json::parse(OutputOfNorvctl({L"--json", L"board", L"show", L"*AFK110"}));

    EXPECT_EQ(shown.at("values").at("Connector"), "9-polig, 150 \u03A9");
    EXPECT_EQ(shown.at("defaults"),
              (json{{"baudrate", "187500"}, {"highest_adr", "31"}, {"l4_timeout", "400"}}));
}

TEST_F(NorvctlBoard, ValuesTellsAListOfIt)
{
    EXPECT_EQ(OutputOfNorvctl({L"board", L"values", L"AFK110", L"Constraints\\highest_adr"}),
              "15/klein\n31/mittel\n63/gro\u00DF\n");
}

TEST_F(NorvctlBoard, ValuesOfAListThatIsNotThereAreNone)
{
    const json shown =
        json::parse(OutputOfNorvctl({L"--json", L"board", L"values", L"ANK300", L"NotSupported"}));

    EXPECT_EQ(shown.at("values"), json::array());
}

TEST_F(NorvctlBoard, GetTellsOneValueOrOneWordOfAConstraint)
{
    EXPECT_EQ(OutputOfNorvctl({L"board", L"get", L"AFK110", L"BusType"}), "PCI\n");
    EXPECT_EQ(OutputOfNorvctl({L"board", L"get", L"AFK110", L"max", L"--path", L"Constraints\\highest_adr"}),
              "63\n");
}

TEST_F(NorvctlBoard, OfAMissingNameFailsForEveryVerb)
{
    for (const Words& words : {Words{L"board", L"show", L"gone"}, Words{L"board", L"values", L"gone", L"any"},
                               Words{L"board", L"get", L"gone", L"any"}})
    {
        const ProgramEnd end = RunNorvctl(words);

        EXPECT_EQ(end.exitCode, 1U);
        EXPECT_EQ(end.output, "");
        EXPECT_THAT(end.error, HasSubstr("norvctl: gone"));
    }
}

TEST_F(NorvctlProtocol, ListTellsThemByTypeWithName)
{
    EXPECT_EQ(OutputOfNorvctl({L"protocol", L"list"}), "L2               Feldbus Schicht 2\n"
                                                       "MPI              Mehrpunktverbindung\n"
                                                       "SERIAL           Serielle Kopplung\n"
                                                       "TCPIP            Anlagennetz\n");
}

TEST_F(NorvctlProtocol, ShowTellsAllParametersWithTheirDefaults)
{
    const json shown = json::parse(OutputOfNorvctl({L"--json", L"protocol", L"show", L"SERIAL"}));

    EXPECT_EQ(shown.at("values").at("line_resistance"), "100 \u03A9");
    EXPECT_EQ(shown.at("values").size(), 13U);
}

TEST_F(NorvctlProtocol, ShowOfAParameterTellsItsConstraint)
{
    EXPECT_EQ(OutputOfNorvctl({L"protocol", L"show", L"SERIAL", L"char_delay"}),
              "default                      4\n"
              "max                          255\n"
              "min                          1\n"
              "ParamDesc                    Zeichenverzugszeit in ms\n"
              "section                      NetworkSettings\n"
              "type                         int\n");
}

TEST_F(NorvctlProtocol, ShowOfAValueTellsWhatItGivesToOthers)
{
    EXPECT_EQ(OutputOfNorvctl({L"protocol", L"show", L"SERIAL", L"baudrate", L"--value", L"19200"}),
              "char_delay                   3\n"
              "ack_timeout                  600\n");
}

TEST_F(NorvctlProtocol, GetTellsOneOfThose)
{
    EXPECT_EQ(OutputOfNorvctl({L"protocol", L"get", L"SERIAL", L"char_delay", L"max"}), "255\n");
    EXPECT_EQ(
        OutputOfNorvctl({L"protocol", L"get", L"SERIAL", L"baudrate", L"ack_timeout", L"--value", L"19200"}),
        "600\n");
}

TEST_F(NorvctlProtocol, ProfilesAndBaudratesTellTheirLists)
{
    EXPECT_EQ(OutputOfNorvctl({L"protocol", L"profiles", L"L2"}),
              "0/DP\n1/Standard\n2/Universell\n3/Benutzerdefiniert\n");
    EXPECT_EQ(OutputOfNorvctl({L"protocol", L"baudrates", L"SERIAL"}),
              "1200\n2400\n4800\n9600\n19200\n38400\n57600\n115200\n");
    EXPECT_THAT(OutputOfNorvctl({L"protocol", L"baudrates", L"L2", L"--profile", L"1"}),
                HasSubstr("45450\n"));
}

TEST_F(NorvctlProtocol, OfAMissingNameOrParameterFails)
{
    const ProgramEnd ofName = RunNorvctl({L"protocol", L"show", L"gone"});
    const ProgramEnd ofParameter = RunNorvctl({L"protocol", L"show", L"L2", L"gone"});

    EXPECT_EQ(ofName.exitCode, 1U);
    EXPECT_EQ(ofName.error,
              "norvctl: gone: the file cannot be opened or parsed (8508 PGSP_ERR_CANT_LOAD_XML_FILE)\n");
    EXPECT_EQ(ofParameter.exitCode, 1U);
    EXPECT_EQ(ofParameter.error,
              "norvctl: L2, gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
}

TEST_F(NorvctlProtocol, ASubParameterWithoutItsValueIsMisuse)
{
    const ProgramEnd end = RunNorvctl(
        {L"protocol", L"show", L"L2", L"busparam", L"--value", L"0", L"--sub-parameter", L"baudrate"});

    EXPECT_EQ(end.exitCode, 2U);
    EXPECT_THAT(end.error, HasSubstr("--sub-value"));
}

} // namespace
} // namespace norvepa::test
