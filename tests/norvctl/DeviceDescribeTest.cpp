#include "support/Norvctl.h"
#include "support/SampleChange.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlDescribe : public Norvctl
{
};

TEST_F(NorvctlDescribe, OfALogDeviceTellsItsAsicBoardAndProtocol)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Abf\u00FCllung Linie 1"}),
              "Asic_Type                    ZRL_16_A\n"
              "DeviceID                     *KQZA010\n"
              "CP_TYPE                      MPI\n");
}

TEST_F(NorvctlDescribe, OfALogDeviceAsJsonIsAnObject)
{
    const json described = json::parse(OutputOfNorvctl({L"--json", L"device", L"describe", L"Labor"}));

    EXPECT_EQ(
        described,
        (json{{"device", "Labor"},
              {"values", {{"Asic_Type", "AUE_NET_2"}, {"DeviceID", "*ANK300"}, {"CP_TYPE", "TCPIP"}}}}));
}

TEST_F(NorvctlDescribe, OfAParameterTellsTheWordsThatThereAre)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Presse#3", L"watchdog"}),
              "type                         int\n"
              "min                          10\n"
              "max                          65530\n"
              "step                         10\n"
              "default                      400\n"
              "section                      LocalSettings\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Kesselhaus", L"memory_base"}),
              "type                         int\n"
              "min                          80000\n"
              "max                          7FFFFF\n"
              "base                         16\n"
              "default                      100000\n"
              "section                      LocalSettings\n");
    EXPECT_THAT(OutputOfNorvctl({L"device", L"describe", L"Presse#3", L"station_adr"}),
                HasSubstr("map                          ts\n"));
}

TEST_F(NorvctlDescribe, OfAParameterTellsTheBoardsWordAheadOfTheProtocols)
{
    const json described =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"describe", L"Presse#3", L"highest_adr"}));

    EXPECT_EQ(described, (json{{"device", "Presse#3"},
                               {"parameter", "highest_adr"},
                               {"values",
                                {{"type", "int"},
                                 {"min", "1"},
                                 {"max", "63"},
                                 {"default", "31"},
                                 {"section", "NetworkSettings"}}}}));
}

TEST_F(NorvctlDescribe, OfAWordTellsItsText)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Presse#3", L"ttr", L"max"}), "16777215\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Presse#3", L"baudrate", L"ParamDesc"}),
              "\u00DCbertragungsgeschwindigkeit der AFK110 in bit/s\n");
}

TEST_F(NorvctlDescribe, OfAWordTellsALongTextOfTheBoardWhole)
{
    const std::string text(5000, 'x');
    ChangeSample(CataloguePath(Afk110Board), "\u00DCbertragungsgeschwindigkeit der AFK110 in bit/s", text);

    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Presse#3", L"baudrate", L"ParamDesc"}), text + "\n");
}

TEST_F(NorvctlDescribe, OfAWordAsJsonNamesIt)
{
    const json described =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"describe", L"Presse#3", L"ttr", L"min"}));

    EXPECT_EQ(described,
              (json{{"device", "Presse#3"}, {"parameter", "ttr"}, {"word", "min"}, {"value", "9"}}));
}

TEST_F(NorvctlDescribe, OfAValueTellsItsDescriptionWhateverTheWord)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Presse#3", L"baudrate\\19200"}), "19,2 kbit/s\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"describe", L"Kesselhaus", L"busparam\\0", L"type"}),
              "DP: schnelle Dezentrale mit einem Master\n");
}

// What nobody can tell.
struct Unknown
{
    const char* name;
    Words what;
    const char* error;
};

void PrintTo(const Unknown& unknown, std::ostream* stream)
{
    *stream << unknown.name;
}

class NorvctlDescribeUnknown : public NorvctlDescribe, public testing::WithParamInterface<Unknown>
{
};

TEST_P(NorvctlDescribeUnknown, Fails)
{
    Words words{L"device", L"describe"};
    words.insert(words.end(), GetParam().what.begin(), GetParam().what.end());

    const ProgramEnd end = RunNorvctl(words);

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, std::string("norvctl: ") + GetParam().error + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Things, NorvctlDescribeUnknown,
    testing::Values(Unknown{"Parameter",
                            {L"Presse#3", L"gone"},
                            "Presse#3, gone: the parameter has no description (8044 "
                            "PGSP_ERR_PARAM_DESC_NOT_FOUND)"},
                    Unknown{"Word",
                            {L"Presse#3", L"ttr", L"step"},
                            "Presse#3, ttr, step: the parameter has no description (8044 "
                            "PGSP_ERR_PARAM_DESC_NOT_FOUND)"},
                    Unknown{"Value",
                            {L"Presse#3", L"baudrate\\7"},
                            "Presse#3, baudrate\\7, ParamDesc: the parameter has no description (8044 "
                            "PGSP_ERR_PARAM_DESC_NOT_FOUND)"},
                    Unknown{
                        "LogDevice", {L"gone"}, "gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)"},
                    Unknown{"ParameterOfALogDevice",
                            {L"gone", L"ttr"},
                            "gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)"}),
    [](const auto& unknown) { return unknown.param.name; });

TEST_F(NorvctlDescribe, OfALogDeviceWhoseBoardIsUnknownFails)
{
    ChangeSample(LogDevicePath(L"Labor"), "DeviceID=\"*ANK300\"", "DeviceID=\"*GONE\"");

    const ProgramEnd end = RunNorvctl({L"device", L"describe", L"Labor"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: Labor, Asic_Type: the file cannot be opened or parsed (8508 "
                         "PGSP_ERR_CANT_LOAD_XML_FILE)\n");
}

} // namespace
} // namespace norvepa::test
