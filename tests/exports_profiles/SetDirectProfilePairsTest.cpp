#include "DirectProfileScene.h"

namespace norvepa::test
{
namespace
{

using SetDirectProfilePairs = DirectProfileScene;

TEST_F(SetDirectProfilePairs, WritesAllPairs)
{
    WriteProfile(XmlContent().Int(L"slot", L"100").Text(L"Größe", L"a;b & c").Bool(L"dp", L"true"));

    ExpectWritten(XmlContent().Text(L"slot", L"100").Text(L"Größe", L"a;b & c").Text(L"dp", L"true"));
}

TEST_F(SetDirectProfilePairs, ChangesEntriesWhereTheyStand)
{
    WriteProfile(XmlContent().Int(L"slot", L"100").Int(L"gap", L"2"));
    WriteEntries(Chosen(XmlContent().Text(L"GAP", L"9").Text(L"note", L"mine").Text(L"slot", L"1")));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectEntries(Chosen(XmlContent().Text(L"GAP", L"2").Text(L"note", L"mine").Text(L"slot", L"100")));
}

TEST_F(SetDirectProfilePairs, IsASuccessWhereNothingIsLeftToChange)
{
    WriteProfile(XmlContent().Int(L"slot", L"100").Int(L"gap", L"2"));
    WriteEntries(Chosen(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2")));

    ExpectSetProfileChangesNothing(L"baudrate", PGSP_OK);
    ExpectSetProfileChangesNothing(L"busparam", PGSP_OK);
}

TEST_F(SetDirectProfilePairs, WritesWhatItCanAroundAPairThatIsRefused)
{
    WriteProfile(XmlContent().Int(L"slot", L"100").Text(L"DeviceID", L"AFK220").Int(L"gap", L"2"));

    ExpectWritten(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2"), PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetDirectProfilePairs, IsNoSuccessWhereTheFirstOrTheLastPairIsRefused)
{
    store.WriteProtocol(
        Catalogue()
            .Parameter(L"baudrate", {},
                       Profiles({{L"187500", XmlContent().Text(L"CP_TYPE", L"L2").Int(L"slot", L"1")}}))
            .Parameter(L"busparam", {},
                       Profiles({{L"3", XmlContent().Int(L"slot", L"1").Text(L"CP_TYPE", L"L2")}})));

    ExpectWritten(XmlContent().Text(L"slot", L"1"), PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetDirectProfilePairs, IsNoSuccessWhereAllPairsAreRefused)
{
    WriteProfile(XmlContent().Text(L"cp_type", L"L2").Text(L"DEVICEID", L"AFK220"));

    ExpectNothingWritten();
}

TEST_F(SetDirectProfilePairs, PassesOverWhatIsNoPair)
{
    WriteProfile(XmlContent()
                     .Comment(L"measured")
                     .Element(L"ParamDesc", L"fast")
                     .Int(L"slot", L"100")
                     .Comment(L"as agreed")
                     .Raw(SubParameter(L"medium", {{L"copper", XmlContent().Int(L"gap", L"1")}}).utf8())
                     .Int(L"gap", L"2")
                     .Comment(L"end"));

    ExpectWritten(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2"));
}

TEST_F(SetDirectProfilePairs, WritesAnEmptyValueForAPairWithoutOne)
{
    WriteProfile(XmlContent()
                     .Element(L"Parameter", XmlContent().Element(L"Name", L"slot"))
                     .Text(L"gap", L"")
                     .Int(L"ttr", L"3"));

    ExpectWritten(XmlContent().Text(L"slot", L"").Text(L"gap", L"").Text(L"ttr", L"3"));
}

// As for any caller that names no parameter.
TEST_F(SetDirectProfilePairs, WritesAPairWithoutANameToTheDefaultParameter)
{
    WriteProfile(XmlContent().Element(L"Parameter", XmlContent().Element(L"Value", L"1")));

    ExpectWritten(XmlContent().Text(L"default", L"1"));
}

TEST_F(SetDirectProfilePairs, WritesThePairsInTheirOrder)
{
    WriteProfile(XmlContent().Int(L"slot", L"1").Int(L"gap", L"2").Text(L"SLOT", L"3"));

    ExpectWritten(XmlContent().Text(L"slot", L"3").Text(L"gap", L"2"));
}

TEST_F(SetDirectProfilePairs, StaysWithTheValueThatAPairChanges)
{
    const XmlContent pairs =
        XmlContent().Text(L"baudrate", L"9600").Text(L"busparam", L"1").Int(L"slot", L"100");
    const XmlContent others = XmlContent().Int(L"a", L"1").Int(L"b", L"2").Int(L"c", L"3").Int(L"d", L"4");
    store.WriteProtocol(Catalogue()
                            .Parameter(L"baudrate", {}, Profiles({{L"187500", pairs}, {L"9600", others}}))
                            .Parameter(L"busparam", {}, Profiles({{L"3", pairs}, {L"1", others}})));

    for (const wchar_t* const choice : Choices)
    {
        WriteEntries(Chosen());

        EXPECT_EQ(SetProfile(choice), PGSP_OK);

        ExpectEntries(XmlContent().Text(L"baudrate", L"9600").Text(L"busparam", L"1").Text(L"slot", L"100"));
    }
}

} // namespace
} // namespace norvepa::test
