#include "SubProfileScene.h"

namespace norvepa::test
{
namespace
{

using SetSubProfile = SubProfileScene;

TEST_F(SetSubProfile, TellsAllNamesAndValuesInAnyCase)
{
    store.WriteProtocol(Catalogue().Parameter(
        L"BUSPARAM", {},
        Profiles({{L"std", SubParameter(L"MEDIUM", {{L"COPPER", XmlContent().Int(L"slot", L"100")}})}})));
    const XmlContent chosen = XmlContent().Text(L"busparam", L"Std").Text(L"medium", L"copper");
    for (const wchar_t* const parameter : {L"busparam", L"BusParam", L"BUSPARAM"})
    {
        WriteEntries(chosen);

        EXPECT_EQ(SetProfile(parameter), PGSP_OK);

        ExpectEntries(XmlContent(chosen).Text(L"slot", L"100"));
    }
}

TEST_F(SetSubProfile, GoesByTheDevicesValues)
{
    const auto profile = [](std::wstring_view of9600, std::wstring_view of19200) {
        return SubParameter(L"baudrate", {{L"9600/slow", XmlContent().Int(L"slot", of9600)},
                                          {L"19200/fast", XmlContent().Int(L"slot", of19200)}});
    };
    store.WriteProtocol(Catalogue().Parameter(
        L"busparam", {}, Profiles({{L"0/DP", profile(L"1", L"2")}, {L"1/Standard", profile(L"3", L"4")}})));
    WriteEntries(XmlContent().Text(L"busparam", L"1").Text(L"baudrate", L"19200").Text(L"slot", L"before"));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);
    ExpectEntries(XmlContent().Text(L"busparam", L"1").Text(L"baudrate", L"19200").Text(L"slot", L"4"));

    EXPECT_EQ(Set(L"busparam", L"0"), PGSP_OK);
    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);
    ExpectEntries(XmlContent().Text(L"busparam", L"0").Text(L"baudrate", L"19200").Text(L"slot", L"2"));

    EXPECT_EQ(Set(L"baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);
    ExpectEntries(XmlContent().Text(L"busparam", L"0").Text(L"baudrate", L"9600").Text(L"slot", L"1"));
}

// The catalogue's words of a parameter are those of its first section in the file.
TEST_F(SetSubProfile, LetsDefaultsStandForValuesThatTheDeviceLacks)
{
    store.WriteProtocol(Catalogue()
                            .Parameter(L"baudrate", {{L"default", L"9600"}})
                            .Parameter(L"busparam", {{L"default", L"1"}},
                                       Profiles({{L"1", Rate(XmlContent().Int(L"slot", L"100"))}})));
    WriteEntries({});

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectEntries(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetSubProfile, NeedsTheValueInTheCollectionsList)
{
    const XmlContent unlisted =
        XmlContent().Element(L"Value", L"2").ParamSection(L"1", Rate(XmlContent().Int(L"slot", L"100")));
    store.WriteProtocol(
        Catalogue().Parameter(L"busparam", {}, XmlContent().Element(L"ValueCollection", unlisted)));

    ExpectNothingWritten();
}

TEST_F(SetSubProfile, NeedsACollection)
{
    store.WriteProtocol(Catalogue()
                            .Parameter(L"busparam", {{L"type", L"string"}})
                            .Parameter(L"medium", {}, Profiles({{L"1"}})));

    ExpectNothingWritten();
}

TEST_F(SetSubProfile, NeedsASubParameter)
{
    WriteProfile(XmlContent().Comment(L"none").Element(L"ParamDesc", L"Standard").Int(L"slot", L"100"));

    ExpectNothingWritten();
}

TEST_F(SetSubProfile, NeedsASectionForTheListedValue)
{
    store.WriteProtocol(Catalogue().Parameter(L"busparam", {}, XmlContent().ValueCollection({L"1"})));

    ExpectNothingWritten();
}

TEST_F(SetSubProfile, EndsAtASubValueThatTheProtocolDoesNotKnow)
{
    WriteProfile(SubParameter(L"medium", {{L"fibre", XmlContent().Int(L"slot", L"1")}})
                     .Raw(Rate(XmlContent().Int(L"slot", L"100")).utf8()));

    ExpectNothingWritten();
}

TEST_F(SetSubProfile, KeepsWithinTheFirstSubParameterWithPairs)
{
    WriteProfile(Medium(XmlContent().Int(L"slot", L"1"))
                     .Raw(Rate(XmlContent().Int(L"slot", L"100").Int(L"gap", L"2")).utf8()));

    ExpectWritten(XmlContent().Text(L"slot", L"1"));
}

TEST_F(SetSubProfile, LooksAtNoUnknownSubValueBehindOneWithPairs)
{
    WriteProfile(Rate(XmlContent().Int(L"slot", L"100")).Raw(SubParameter(L"medium", {{L"fibre"}}).utf8()));

    ExpectWritten(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetSubProfile, GoesOnBehindASubValueWithoutPairs)
{
    WriteProfile(Medium(XmlContent().Element(L"ParamDesc", L"as before"))
                     .Raw(Medium({}).utf8())
                     .Raw(Rate(XmlContent().Int(L"slot", L"100")).utf8()));

    ExpectWritten(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetSubProfile, EndsAtAnUnknownSubValueBehindOneWithoutPairs)
{
    WriteProfile(Medium({}).Raw(SubParameter(L"baudrate", {{L"19200"}}).utf8()));

    ExpectNothingWritten();
}

TEST_F(SetSubProfile, FindsNoValueWhereNoSubValueHasPairs)
{
    WriteProfile(Medium({}).Raw(Rate({}).utf8()));

    ExpectNothingWritten();
}

// An empty sub-value is no step on the way through the protocol: the sub-parameter itself is found, without
// pairs.
TEST_F(SetSubProfile, GoesOnBehindASubParameterThatTheDeviceLacks)
{
    WriteProfile(SubParameter(L"redundancy", {{L"on", XmlContent().Int(L"slot", L"1")}})
                     .Raw(Rate(XmlContent().Int(L"slot", L"100")).utf8()));

    ExpectWritten(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetSubProfile, FindsNoValueWhereTheDeviceLacksTheOnlySubParameter)
{
    WriteProfile(SubParameter(L"redundancy", {{L"on", XmlContent().Int(L"slot", L"1")}}));

    ExpectNothingWritten();
}

TEST_F(SetSubProfile, TakesAnEmptySubValueForNone)
{
    WriteProfile(SubParameter(L"redundancy", {{L"on", XmlContent().Int(L"slot", L"1")}})
                     .Raw(Rate(XmlContent().Int(L"slot", L"100")).utf8()));
    WriteEntries(Chosen(XmlContent().Text(L"redundancy", L"")));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectEntries(Chosen(XmlContent().Text(L"redundancy", L"").Text(L"slot", L"100")));
}

// Of the user's own profile only a value that is "3" to the letter is spoken.
TEST_F(SetSubProfile, BelongsToEveryValueButTheUsersOwn)
{
    const XmlContent profile =
        XmlContent().Int(L"gap", L"1").Raw(Rate(XmlContent().Int(L"slot", L"100")).utf8());
    store.WriteProtocol(Catalogue().Parameter(
        L"busparam", {},
        Profiles({{L"03", profile}, {L"33", profile}, {L"User", profile}, {L"3", profile}})));
    const auto entries = [](std::wstring_view value) {
        return XmlContent().Text(L"busparam", value).Text(L"baudrate", L"9600");
    };
    for (const wchar_t* const value : {L"03", L"33", L"User"})
    {
        WriteEntries(entries(value));

        EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

        ExpectEntries(entries(value).Text(L"slot", L"100"));
    }
    WriteEntries(entries(L"3"));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectEntries(entries(L"3").Text(L"gap", L"1"));
}

TEST_F(SetSubProfile, HasThePairsAndTheListThatWereThereFirstAndTheSubParametersOfNow)
{
    WriteProfile(Medium(XmlContent().Text(L"slot", L"1")).Raw(Rate(XmlContent().Text(L"gap", L"1")).utf8()));
    ExpectWritten(XmlContent().Text(L"slot", L"1"));

    store.WriteProtocol(Catalogue().Parameter(
        L"busparam", {}, Profiles({{L"2"}, {L"1/Standard", Medium(XmlContent().Text(L"slot", L"2"))}})));
    ExpectWritten(XmlContent().Text(L"slot", L"1"));

    WriteProfile(Rate(XmlContent().Text(L"gap", L"2")));
    ExpectWritten(XmlContent().Text(L"gap", L"1"));
}

} // namespace
} // namespace norvepa::test
