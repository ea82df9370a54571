#include "InternalRead.h"

namespace norvepa::test
{
namespace
{

using InternalGetValue = InternalRead<&LogDeviceGetValue>;

TEST_F(InternalGetValue, RefusesMissingArguments)
{
    ExpectMissingArgumentsRefused();
}

TEST_F(InternalGetValue, SucceedsWithoutTheDataFolderAndLeavesTheOutputAlone)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(Value(L"DeviceID"), L"before");
}

TEST_F(InternalGetValue, TestsArgumentsAheadOfTheDataFolder)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(Value(L""), L"(result 87)");
}

TEST_F(InternalGetValue, ReadsEveryRootAttributeInAnyCase)
{
    WriteBytes(
        roots.logDevice(L"Presse"),
        XmlFile(L"LogDevice", {{L"DeviceID", L"*AFK110"}, {L"CP_TYPE", L"MPI"}, {L"Alias", L"P1"}}, {}));

    EXPECT_EQ(Value(L"DeviceID"), L"*AFK110");
    EXPECT_EQ(Value(L"cp_type"), L"MPI");
    EXPECT_EQ(Value(L"ALIAS"), L"P1");
}

TEST_F(InternalGetValue, PrefersARootAttributeToTheCataloguesSection)
{
    store.WriteBoard(Catalogue().Parameter(L"Alias", {{L"section", L"LocalSettings"}, {L"default", L"P3"}}));
    WriteBytes(roots.logDevice(L"Presse"),
               XmlFile(L"LogDevice", {{L"DeviceID", L"AFK110"}, {L"Alias", L"P1"}},
                       XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Alias", L"P2"))));

    EXPECT_EQ(Value(L"Alias"), L"P1");
}

TEST_F(InternalGetValue, ReadsFromTheCataloguesSection)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"section", L"UserInterface"}}));
    store.WriteDevice(L"Presse", XmlContent()
                                     .Element(L"DeviceHeader", XmlContent().Int(L"Stufe", L"1"))
                                     .Element(L"UserInterface", XmlContent().Int(L"Stufe", L"2"))
                                     .Element(L"SpareSection", XmlContent().Int(L"Stufe", L"3")));

    EXPECT_EQ(Value(L"Stufe"), L"2");
}

TEST_F(InternalGetValue, ReadsFromNoOtherSectionThanTheCatalogues)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"section", L"LocalSettings"}}));
    store.WriteDevice(L"Presse", XmlContent()
                                     .Element(L"DeviceHeader", XmlContent().Int(L"Stufe", L"1"))
                                     .Element(L"SpareSection", XmlContent().Int(L"Stufe", L"3")));

    EXPECT_EQ(Value(L"Stufe"), L"(result 8046)");
}

TEST_F(InternalGetValue, ReadsFromSpareSectionWithoutAWordOfTheCatalogueAndSearchesNoSection)
{
    store.WriteDevice(L"Presse",
                      XmlContent()
                          .Element(L"DeviceHeader", XmlContent().Int(L"Stufe", L"1").Int(L"Takt", L"1"))
                          .Element(L"Ndi", XmlContent().Int(L"Stufe", L"2"))
                          .Element(L"SpareSection", XmlContent().Int(L"Stufe", L"3")));

    EXPECT_EQ(Value(L"Stufe"), L"3");
    EXPECT_EQ(Value(L"Takt"), L"(result 8046)");
}

TEST_F(InternalGetValue, ReadsTheNameThatTheCatalogueMapsTo)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"section", L"LocalSettings"}, {L"map", L"stage"}}));
    store.WriteDevice(L"Presse", XmlContent().Element(L"LocalSettings",
                                                      XmlContent().Int(L"Stufe", L"1").Int(L"Stage", L"2")));

    EXPECT_EQ(Value(L"Stufe"), L"2");
}

TEST_F(InternalGetValue, ReadsAMappedNameFromSpareSection)
{
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"map", L"stage"}}));
    store.WriteDevice(L"Presse", XmlContent().Element(L"SpareSection", XmlContent().Int(L"stage", L"2")));

    EXPECT_EQ(Value(L"Stufe"), L"2");
}

TEST_F(InternalGetValue, ReadsNoMappedNameFromTheRootsAttributes)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"map", L"CP_TYPE"}}));

    EXPECT_EQ(Value(L"Stufe"), L"(result 8046)");
}

TEST_F(InternalGetValue, UsesTheDefaultForAParameterThatIsNotThere)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"4"}, {L"section", L"LocalSettings"}}));

    EXPECT_EQ(Value(L"Stufe"), L"4");
}

TEST_F(InternalGetValue, UsesTheDefaultOfTheParameterAndNotOfTheMappedName)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"Stufe", {{L"map", L"stage"}, {L"default", L"4"}})
                         .Parameter(L"stage", {{L"default", L"5"}}));

    EXPECT_EQ(Value(L"Stufe"), L"4");
}

TEST_F(InternalGetValue, TakesAnEmptyValueForAValue)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"4"}}));
    store.WriteDevice(L"Presse", XmlContent().Element(L"SpareSection", XmlContent().Text(L"Stufe", L"")));

    EXPECT_EQ(Value(L"Stufe"), L"");
}

TEST_F(InternalGetValue, FindsNoDefaultForAnUnknownParameter)
{
    EXPECT_EQ(Value(L"unknown"), L"(result 8046)");
}

TEST_F(InternalGetValue, FindsNoDefaultForADeviceThatIsMissingOrBroken)
{
    WriteBytes(roots.logDevice(L"broken"), "no XML");

    EXPECT_EQ(Value(L"DeviceID", L"gone"), L"(result 8046)");
    EXPECT_EQ(Value(L"DeviceID", L"broken"), L"(result 8046)");
}

TEST_F(InternalGetValue, UsesTheDefaultOfABoardWithoutAnIdForADeviceThatIsMissing)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"4"}}), L"");

    EXPECT_EQ(Value(L"Stufe", L"gone"), L"4");
}

// The catalogue then answers with a success and with nothing.
TEST_F(InternalGetValue, IsEmptyWithoutTheProgramFolder)
{
    store.TakeProgramFolderAway();

    EXPECT_EQ(Value(L"unknown"), L"");
    EXPECT_EQ(Value(L"DeviceID", L"gone"), L"");
}

TEST_F(InternalGetValue, KnowsNoSubdevices)
{
    store.WriteDevice(L"Presse", XmlContent().Subdevice(L"ventil", XmlContent().Int(L"Stufe", L"1")));

    EXPECT_EQ(Value(L"Stufe", L"Presse\\subdevices\\ventil"), L"(result 8046)");
}

TEST_F(InternalGetValue, ReadsDevicesWithCodedNames)
{
    store.WriteDevice(L"Presse(nmbr)3#3a 50#25 #2a#3f#3c#3e#7c#2f", {}, L"KQZA010");
    store.WriteDevice(L"F\u00F6rderb\u00E4nder", {}, L"ASK040");

    EXPECT_EQ(Value(L"DeviceID", L"Presse#3: 50% *?<>|/"), L"KQZA010");
    EXPECT_EQ(Value(L"DeviceID", L"F\u00F6rderb\u00E4nder"), L"ASK040");
}

} // namespace
} // namespace norvepa::test
