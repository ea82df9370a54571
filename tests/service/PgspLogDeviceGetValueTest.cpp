#include "InternalRead.h"

namespace norvepa::test
{
namespace
{

using SearchingGetValue = InternalRead<&PGSP_LogDeviceGetValue>;

TEST_F(SearchingGetValue, RefusesMissingArguments)
{
    ExpectMissingArgumentsRefused();
}

TEST_F(SearchingGetValue, NeedsTheDataFolderButNotTheProgramFolder)
{
    store.TakeProgramFolderAway();
    EXPECT_EQ(Value(L"DeviceID"), L"AFK110");

    store.TakeDataFolderAway();

    EXPECT_EQ(Value(L"DeviceID"), L"(result 8517)");
}

TEST_F(SearchingGetValue, ReadsEveryRootAttributeAheadOfTheSections)
{
    WriteBytes(roots.logDevice(L"Presse"),
               XmlFile(L"LogDevice", {{L"DeviceID", L"AFK110"}, {L"Alias", L"P1"}},
                       XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"Alias", L"P2"))));

    EXPECT_EQ(Value(L"deviceid"), L"AFK110");
    EXPECT_EQ(Value(L"ALIAS"), L"P1");
}

TEST_F(SearchingGetValue, FindsEachOfItsSections)
{
    for (const wchar_t* const section :
         {L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings", L"SpareSection"})
    {
        store.WriteDevice(L"Presse", XmlContent().Element(section, XmlContent().Text(L"Ort", section)));
        EXPECT_EQ(Value(L"ORT"), section);
    }
}

TEST_F(SearchingGetValue, FindsNoOtherSection)
{
    for (const wchar_t* const section : {L"Ndi", L"UserInterface", L"UserInterface64", L"Load"})
    {
        store.WriteDevice(L"Presse", XmlContent().Element(section, XmlContent().Text(L"Ort", section)));
        EXPECT_EQ(Value(L"Ort"), L"(result 8513)");
    }
}

TEST_F(SearchingGetValue, GoesByItsOwnOrderAndNotByTheFiles)
{
    const XmlContent spare = XmlContent().Element(L"SpareSection", XmlContent().Int(L"Stufe", L"5"));
    const XmlContent bindings = XmlContent(spare).Element(L"Bindings", XmlContent().Int(L"Stufe", L"4"));
    const XmlContent network =
        XmlContent(bindings).Element(L"NetworkSettings", XmlContent().Int(L"Stufe", L"3"));
    const XmlContent local = XmlContent(network).Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"2"));
    const XmlContent header = XmlContent(local).Element(L"DeviceHeader", XmlContent().Int(L"Stufe", L"1"));

    store.WriteDevice(L"Presse", header);
    EXPECT_EQ(Value(L"Stufe"), L"1");
    store.WriteDevice(L"Presse", local);
    EXPECT_EQ(Value(L"Stufe"), L"2");
    store.WriteDevice(L"Presse", network);
    EXPECT_EQ(Value(L"Stufe"), L"3");
    store.WriteDevice(L"Presse", bindings);
    EXPECT_EQ(Value(L"Stufe"), L"4");
    store.WriteDevice(L"Presse", spare);
    EXPECT_EQ(Value(L"Stufe"), L"5");
}

TEST_F(SearchingGetValue, MeetsASubdevicesParameterWithinASection)
{
    store.WriteDevice(L"Presse", XmlContent()
                                     .Element(L"Bindings", XmlContent().Subdevice(
                                                               L"ventil", XmlContent().Int(L"Stufe", L"1")))
                                     .Element(L"SpareSection", XmlContent().Int(L"Stufe", L"2")));

    EXPECT_EQ(Value(L"Stufe"), L"1");
}

TEST_F(SearchingGetValue, PassesOverAParameterWithoutAValue)
{
    store.WriteDevice(
        L"Presse", XmlContent()
                       .Element(L"DeviceHeader",
                                XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"Stufe")))
                       .Element(L"SpareSection", XmlContent().Int(L"Stufe", L"2")));

    EXPECT_EQ(Value(L"Stufe"), L"2");
}

TEST_F(SearchingGetValue, AsksNoCatalogue)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"Stufe", {{L"section", L"Ndi"}, {L"map", L"stage"}})
                         .Parameter(L"Takt", {{L"default", L"4"}}));
    store.WriteDevice(L"Presse", XmlContent()
                                     .Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"1"))
                                     .Element(L"Ndi", XmlContent().Int(L"stage", L"2")));

    EXPECT_EQ(Value(L"Stufe"), L"1");
    EXPECT_EQ(Value(L"Takt"), L"(result 8513)");
}

TEST_F(SearchingGetValue, OfAnUnknownParameterIsTheStoresCodeAndEmpty)
{
    std::wstring value = L"before";

    EXPECT_EQ(PGSP_LogDeviceGetValue(L"Presse", L"unknown", &value), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(value, L"");
}

TEST_F(SearchingGetValue, OfADeviceThatIsMissingIsTheStoresCode)
{
    EXPECT_EQ(Value(L"DeviceID", L"gone"), L"(result 8508)");
}

TEST_F(SearchingGetValue, OfANameThatIsTooLongIsTheStoresCode)
{
    EXPECT_EQ(Value(L"DeviceID", store.DeviceForPathOf(260).c_str()), L"(result 234)");
}

TEST_F(SearchingGetValue, ReadsDevicesWithCodedNames)
{
    store.WriteDevice(L"Presse(nmbr)3#3a 50#25 #2a#3f#3c#3e#7c#2f", {}, L"KQZA010");
    store.WriteDevice(L"F\u00F6rderb\u00E4nder", {}, L"ASK040");

    EXPECT_EQ(Value(L"DeviceID", L"Presse#3: 50% *?<>|/"), L"KQZA010");
    EXPECT_EQ(Value(L"DeviceID", L"F\u00F6rderb\u00E4nder"), L"ASK040");
}

} // namespace
} // namespace norvepa::test
