#include "SubProfileScene.h"

namespace norvepa::test
{
namespace
{

using SetSubProfilePairs = SubProfileScene;

TEST_F(SetSubProfilePairs, WritesAllPairsOfTheSubValue)
{
    WriteProfile(Rate(XmlContent().Text(L"Größe", L"a;b").Bool(L"dp", L"true").Int(L"slot", L"100")));

    ExpectWritten(XmlContent().Text(L"Größe", L"a;b").Text(L"dp", L"true").Text(L"slot", L"100"));
}

TEST_F(SetSubProfilePairs, IsASuccessWhereNothingIsLeftToChange)
{
    WriteProfile(Rate(XmlContent().Int(L"slot", L"100").Int(L"gap", L"2")));
    WriteEntries(Chosen(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2")));

    ExpectSetProfileChangesNothing(L"busparam", PGSP_OK);
}

TEST_F(SetSubProfilePairs, WritesNoPairsOfTheValueItself)
{
    WriteProfile(XmlContent().Int(L"gap", L"1").Raw(Rate(XmlContent().Int(L"slot", L"100")).utf8()));

    ExpectWritten(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetSubProfilePairs, WritesWhatItCanAroundAPairThatIsRefused)
{
    WriteProfile(Medium(XmlContent().Text(L"slot", L"1").Text(L"DeviceID", L"AFK220").Text(L"gap", L"2"))
                     .Raw(Rate(XmlContent().Int(L"ttr", L"100")).utf8()));

    ExpectWritten(XmlContent().Text(L"slot", L"1").Text(L"gap", L"2"), PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetSubProfilePairs, KeepsWithinASubParameterAllOfWhosePairsAreRefused)
{
    WriteProfile(Medium(XmlContent().Text(L"CP_TYPE", L"L2").Text(L"DeviceID", L"AFK220"))
                     .Raw(Rate(XmlContent().Int(L"slot", L"100")).utf8()));

    ExpectNothingWritten();
}

TEST_F(SetSubProfilePairs, PassesOverWhatIsNoSubParameterAndNoPair)
{
    const XmlContent pairs = XmlContent()
                                 .Comment(L"measured")
                                 .Int(L"slot", L"100")
                                 .Element(L"ParamDesc", L"fast")
                                 .Comment(L"as agreed")
                                 .Int(L"gap", L"2");
    WriteProfile(XmlContent()
                     .Comment(L"cable")
                     .Element(L"ParamDesc", L"Standard")
                     .Raw(Medium({}).utf8())
                     .Comment(L"rates")
                     .Int(L"ttr", L"1")
                     .Raw(Rate(pairs).utf8()));

    ExpectWritten(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2"));
}

TEST_F(SetSubProfilePairs, EndsItsPairsAtOneWithoutAValue)
{
    WriteProfile(Rate(XmlContent()
                          .Text(L"slot", L"100")
                          .Element(L"Parameter", XmlContent().Element(L"Name", L"gap"))
                          .Text(L"ttr", L"3")));

    ExpectWritten(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetSubProfilePairs, CountsAsWithoutPairsWhereTheFirstHasNoValue)
{
    const XmlContent noValue = XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"slot"));
    WriteProfile(
        Medium(XmlContent(noValue).Text(L"gap", L"1")).Raw(Rate(XmlContent().Text(L"ttr", L"3")).utf8()));

    ExpectWritten(XmlContent().Text(L"ttr", L"3"));
}

TEST_F(SetSubProfilePairs, StaysWithTheValuesThatAPairChanges)
{
    const XmlContent pairs =
        XmlContent().Text(L"busparam", L"0").Text(L"baudrate", L"19200").Text(L"slot", L"100");
    const XmlContent others = XmlContent().Text(L"a", L"1").Text(L"b", L"2").Text(L"c", L"3");
    const XmlContent rates = SubParameter(L"baudrate", {{L"9600", pairs}, {L"19200", others}});
    store.WriteProtocol(
        Catalogue().Parameter(L"busparam", {}, Profiles({{L"1", rates}, {L"0", Rate(others)}})));
    WriteEntries(XmlContent().Text(L"busparam", L"1").Text(L"baudrate", L"9600"));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectEntries(XmlContent().Text(L"busparam", L"0").Text(L"baudrate", L"19200").Text(L"slot", L"100"));
}

} // namespace
} // namespace norvepa::test
