#include "support/Norvctl.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

struct Slip
{
    const char* name;
    Words words;
    const char* end; // of the message
};

void PrintTo(const Slip& slip, std::ostream* stream)
{
    *stream << slip.name;
}

class NorvctlSuggestion : public Norvctl, public testing::WithParamInterface<Slip>
{
};

TEST_P(NorvctlSuggestion, NamesTheNearestThingThatIsThere)
{
    const ProgramEnd end = RunNorvctl(GetParam().words);

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error, EndsWith(std::string(GetParam().end) + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Nouns, NorvctlSuggestion,
    testing::Values(
        Slip{"Parameter",
             {L"device", L"get", L"Kesselhaus", L"baudrat"},
             "Kesselhaus, baudrat: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND); "
             "did you mean baudrate?"},
        Slip{"ParameterOfTheCatalogueAlone",
             {L"device", L"describe", L"Abf\u00FCllung Linie 2", L"higest_adr"},
             "did you mean highest_adr?"},
        Slip{"Device",
             {L"device", L"show", L"Kesselhau"},
             "there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND); did you mean Kesselhaus?"},
        Slip{"DeviceAheadOfItsParameter",
             {L"device", L"get", L"Leitwarde", L"Unit"},
             "(8012 PGSP_ERR_LOG_DEVICE_NOT_EXISTS); did you mean Leitwarte?"},
        Slip{"DeviceOfAChange", {L"device", L"unset", L"Labo", L"mtu"}, "did you mean Labor?"},
        Slip{"Subdevice",
             {L"device", L"show", L"Etikettierer\\subdevices\\Drucker C"},
             "did you mean Etikettierer\\subdevices\\Drucker A?"},
        Slip{"Name", {L"name", L"show", L"Lagerhau"}, "did you mean Lagerhaus?"},
        Slip{"ParameterOfAName", {L"name", L"get", L"Verladung", L"LogDevise"}, "did you mean LogDevice?"},
        Slip{"DeviceToLinkTo",
             {L"name", L"link", L"Lagerhaus", L"Kesselhau"},
             "(8012 PGSP_ERR_LOG_DEVICE_NOT_EXISTS); did you mean Kesselhaus?"},
        Slip{"Board", {L"board", L"show", L"AFK22"}, "did you mean AFK220?"},
        Slip{"BoardWithAStar", {L"board", L"show", L"*KQZA01"}, "did you mean KQZA010?"},
        Slip{"ParameterOfABoard", {L"board", L"get", L"AFK220", L"Allias"}, "did you mean Alias?"},
        Slip{"Protocol", {L"protocol", L"show", L"SERIEL"}, "did you mean SERIAL?"},
        Slip{"ParameterOfAProtocol",
             {L"protocol", L"get", L"L2", L"baudrat", L"min"},
             "did you mean baudrate?"},
        Slip{"Template", {L"template", L"show", L"L2-AFK22"}, "did you mean L2-AFK220?"},
        Slip{"TemplateToMakeFrom",
             {L"device", L"create", L"Labor 2", L"--from", L"L2-AFK22"},
             "did you mean L2-AFK220?"}),
    [](const auto& slip) { return slip.param.name; });

class NorvctlNoSuggestion : public Norvctl, public testing::WithParamInterface<Slip>
{
};

TEST_P(NorvctlNoSuggestion, IsMadeWhereNothingIsNearOrSomethingElseIsWrong)
{
    const ProgramEnd end = RunNorvctl(GetParam().words);

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr(GetParam().end));
    EXPECT_THAT(end.error, Not(HasSubstr("did you mean")));
}

INSTANTIATE_TEST_SUITE_P(
    Failures, NorvctlNoSuggestion,
    testing::Values(Slip{"NothingNear", {L"device", L"show", L"gone"}, "8503"},
                    Slip{"ParameterOfAHiddenDevice", {L"device", L"get", L"PC internal", L"colour"}, "8513"},
                    Slip{"RefusedValue", {L"device", L"set", L"Kesselhaus", L"baudrate", L"1"}, "8050"},
                    Slip{"NameThatIsThere", {L"name", L"create", L"Lagerhaus"}, "8504"}),
    [](const auto& slip) { return slip.param.name; });

class NorvctlNewParameter : public Norvctl
{
};

TEST_F(NorvctlNewParameter, IsTakenAndToldOfWhenItIsNearlyAKnownOne)
{
    const ProgramEnd first = RunNorvctl({L"device", L"set", L"Kesselhaus", L"baudrat", L"500000"});
    const ProgramEnd second = RunNorvctl({L"device", L"set", L"Kesselhaus", L"baudrat", L"9600"});

    EXPECT_EQ(first.exitCode, 0U);
    EXPECT_EQ(first.output, "set Kesselhaus, baudrat\n");
    EXPECT_EQ(first.error, "norvctl: baudrat is new to Kesselhaus; did you mean baudrate?\n");
    EXPECT_EQ(second.error, "");
}

TEST_F(NorvctlNewParameter, IsTakenWithoutAWordWhenNothingIsNearOrTheCatalogueKnowsIt)
{
    EXPECT_EQ(RunNorvctl({L"device", L"set", L"Kesselhaus", L"Wartungsplan", L"A"}).error, "");
    EXPECT_EQ(RunNorvctl({L"device", L"set", L"Abf\u00FCllung Linie 2", L"highest_adr", L"31"}).error, "");
}

} // namespace
} // namespace norvepa::test
