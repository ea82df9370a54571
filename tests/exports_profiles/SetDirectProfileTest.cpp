#include "DirectProfileScene.h"

namespace norvepa::test
{
namespace
{

using SetDirectProfile = DirectProfileScene;

TEST_F(SetDirectProfile, TellsItsParameterInAnyCase)
{
    WriteProfile(XmlContent().Int(L"slot", L"100"));
    for (const wchar_t* const parameter : {L"BAUDRATE", L"Baudrate", L"BusParam", L"BUSPARAM"})
    {
        WriteEntries(Chosen());

        EXPECT_EQ(SetProfile(parameter), PGSP_OK) << parameter;

        ExpectEntries(Chosen(XmlContent().Text(L"slot", L"100")));
    }
}

TEST_F(SetDirectProfile, IsTheOneOfTheDevicesValue)
{
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {},
                                              Profiles({{L"9600", XmlContent().Int(L"slot", L"9")},
                                                        {L"auto", XmlContent().Int(L"slot", L"0")},
                                                        {L"19200", XmlContent().Int(L"slot", L"19")}})));
    WriteEntries(XmlContent().Text(L"baudrate", L"AUTO").Text(L"slot", L"1"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);
    ExpectEntries(XmlContent().Text(L"baudrate", L"AUTO").Text(L"slot", L"0"));

    EXPECT_EQ(Set(L"baudrate", L"19200"), PGSP_OK);
    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);
    ExpectEntries(XmlContent().Text(L"baudrate", L"19200").Text(L"slot", L"19"));
}

TEST_F(SetDirectProfile, IsThatOfTheDefaultForADeviceWithoutAValue)
{
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {{L"default", L"187500"}},
                                              Profiles({{L"187500", XmlContent().Int(L"slot", L"100")}})));
    WriteEntries({});

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectEntries(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetDirectProfile, NeedsAValueInTheDevice)
{
    WriteProfile(XmlContent().Int(L"slot", L"100"));
    Write(Spare({}).Element(L"LocalSettings", Chosen())); // where nobody looks without the catalogue's word

    ExpectSetProfileChangesNothing(L"baudrate", PGSP_PROFILE_NO_VALUE);
    ExpectSetProfileChangesNothing(L"busparam", PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetDirectProfile, NeedsTheValueInTheCollectionsList)
{
    const XmlContent unlisted =
        XmlContent().ParamSection(L"187500", XmlContent().Int(L"slot", L"100")).Element(L"Value", L"9600");
    store.WriteProtocol(
        Catalogue()
            .Parameter(L"baudrate", {}, XmlContent().Element(L"ValueCollection", unlisted))
            .Parameter(L"busparam", {}, Profiles({{L"1", XmlContent().Int(L"slot", L"100")}})));

    ExpectNothingWritten();
}

TEST_F(SetDirectProfile, NeedsACollection)
{
    store.WriteProtocol(Catalogue()
                            .Parameter(L"baudrate", {{L"type", L"string"}})
                            .Parameter(L"slot", {}, Profiles({{L"3"}, {L"187500"}})));

    ExpectNothingWritten();
}

TEST_F(SetDirectProfile, GoesByWhatStandsAheadOfASlashInTheList)
{
    store.WriteProtocol(
        Catalogue()
            .Parameter(L"baudrate", {},
                       Profiles({{L"187500/187,5 kbit/s", XmlContent().Int(L"slot", L"100")}}))
            .Parameter(L"busparam", {}, Profiles({{L"3/User", XmlContent().Int(L"slot", L"100")}})));

    ExpectWritten(XmlContent().Text(L"slot", L"100"));
}

TEST_F(SetDirectProfile, FindsNoValueInAnEmptyCollection)
{
    WriteProfile({});

    ExpectNothingWritten();
}

TEST_F(SetDirectProfile, FindsNoValueInACollectionWithoutPairs)
{
    WriteProfile(XmlContent()
                     .Comment(L"later")
                     .Element(L"ParamDesc", L"slow")
                     .Resource({.name = L"slot", .resourceId = L"1"}));

    ExpectNothingWritten();
}

TEST_F(SetDirectProfile, FindsNoValueForAListedValueWithoutASection)
{
    store.WriteProtocol(Catalogue()
                            .Parameter(L"baudrate", {}, XmlContent().ValueCollection({L"187500"}))
                            .Parameter(L"busparam", {}, XmlContent().ValueCollection({L"3"})));

    ExpectNothingWritten();
}

TEST_F(SetDirectProfile, HasNoSubProfiles)
{
    WriteProfile(SubParameter(L"medium", {{L"copper", XmlContent().Int(L"slot", L"1")}}));

    ExpectNothingWritten();
}

TEST_F(SetDirectProfile, HasTheListThatWasThereFirstAndThePairsOfNow)
{
    WriteProfile(XmlContent().Text(L"slot", L"100"));
    ExpectWritten(XmlContent().Text(L"slot", L"100"));

    const XmlContent unlisted =
        XmlContent().Element(L"ValueCollection", XmlContent()
                                                     .ParamSection(L"187500", XmlContent().Text(L"gap", L"2"))
                                                     .ParamSection(L"3", XmlContent().Text(L"gap", L"2")));
    store.WriteProtocol(
        Catalogue().Parameter(L"baudrate", {}, unlisted).Parameter(L"busparam", {}, unlisted));
    ExpectWritten(XmlContent().Text(L"gap", L"2"));
}

// Wherever they stand in the file: behind the pairs of the first come those that the next has more.
TEST_F(SetDirectProfile, GoesOnInFurtherSectionsOfTheParameter)
{
    const XmlContent more = XmlContent().Text(L"a", L"1").Text(L"b", L"2").Text(L"c", L"3");
    store.WriteProtocol(
        Catalogue()
            .Parameter(L"baudrate", {}, Profiles({{L"187500", XmlContent().Text(L"slot", L"100")}}))
            .Parameter(L"busparam", {}, Profiles({{L"1", SubParameter(L"baudrate", {{L"187500", more}})}})));
    WriteEntries(Chosen());

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectEntries(Chosen(XmlContent().Text(L"slot", L"100").Text(L"b", L"2").Text(L"c", L"3")));
}

} // namespace
} // namespace norvepa::test
