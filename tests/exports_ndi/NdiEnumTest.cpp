#include "NdiScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using NdiEnum = NdiScene;

TEST_F(NdiEnum, ListsTheSectionNdiAndBesideItTheSectionOfLinksButNoTexts)
{
    Write(Identity(XmlContent()
                       .Bool(L"hidden", L"false")
                       .Text(L"VendorName", L"Auental")
                       .Int(L"YearOfManufacture", L"2019")
                       .Comment(L"no value"),
                   XmlContent()
                       .Text(L"DialogTitle", L"Schnitzelpresse")
                       .Resource(DescText)
                       .ParameterAssemblyLink(PropSheet)
                       .Int(L"Columns", L"2")));

    EXPECT_THAT(AllNdi(),
                ElementsAre(Pair(L"hidden", L"false"), Pair(L"VendorName", L"Auental"),
                            Pair(L"YearOfManufacture", L"2019"), Pair(L"DialogTitle", L"Schnitzelpresse"),
                            Pair(L"PropSheet", L"Seiten.dll,ShowPage"), Pair(L"Columns", L"2")));
}

TEST_F(NdiEnum, ChoosesTheSectionOfLinksByTheFlag)
{
    Write(Ndi(XmlContent().Text(L"Ort", L"Halle"))
              .Element(L"UserInterface", XmlContent().Text(L"Titel", L"32"))
              .Element(L"UserInterface64", XmlContent().Text(L"Titel", L"64")));

    EXPECT_THAT(AllNdi(In64), ElementsAre(Pair(L"Ort", L"Halle"), Pair(L"Titel", L"64")));
    for (const std::int32_t flag : {1, 2, -1, INT32_MIN})
    {
        EXPECT_THAT(AllNdi(flag), ElementsAre(Pair(L"Ort", L"Halle"), Pair(L"Titel", L"32"))) << flag;
    }
}

TEST_F(NdiEnum, FollowsTheDocumentsOrderOverAllSectionsOfTheTwoNames)
{
    Write(XmlContent()
              .Element(L"UserInterface64", XmlContent().Text(L"1", L"a"))
              .Element(L"LocalSettings", XmlContent().Text(L"no", L"x"))
              .Element(L"Ndi", XmlContent().Text(L"2", L"b"))
              .Element(L"Bindings", Ndi(XmlContent().Text(L"3", L"c")))
              .Element(L"UserInterface64", XmlContent().Text(L"4", L"d"))
              .Element(L"Ndi", XmlContent().ParameterAssemblyLink(PropSheet)));

    EXPECT_THAT(AllNdi(), ElementsAre(Pair(L"1", L"a"), Pair(L"2", L"b"), Pair(L"3", L"c"), Pair(L"4", L"d"),
                                      Pair(L"PropSheet", L"Seiten.dll,ShowPage")));
}

TEST_F(NdiEnum, ShowsALinkByItsLibraryWithoutWhichItIsEmpty)
{
    Write(Links(XmlContent()
                    .ParameterAssemblyLink({.name = L"1", .assembly = L"a.dll", .function = L"f,g"})
                    .ParameterAssemblyLink({.name = L"2", .assembly = L"a.dll"})
                    .ParameterAssemblyLink({.name = L"3", .assembly = L"", .function = L"f"})
                    .ParameterAssemblyLink({.name = L"4", .function = L"f"})
                    .ParameterAssemblyLink({.assembly = L"a.dll", .function = L"f"})));

    EXPECT_THAT(AllNdi(), ElementsAre(Pair(L"1", L"a.dll,f,g"), Pair(L"2", L"a.dll,"), Pair(L"3", L""),
                                      Pair(L"4", L""), Pair(L"", L"a.dll,f")));
}

TEST_F(NdiEnum, ShowsTheValueOfALinkThatHasOne)
{
    const XmlContent link =
        XmlContent().Element(L"Name", L"1").Element(L"Assembly", L"a.dll").Element(L"Function", L"f");
    Write(Links(XmlContent()
                    .Element(L"ParameterAssemblyLink", XmlContent(link).Element(L"Value", L"v"))
                    .Element(L"ParameterAssemblyLink", XmlContent(link).Element(L"Value", L""))));

    EXPECT_THAT(AllNdi(), ElementsAre(Pair(L"1", L"v"), Pair(L"1", L"a.dll,f")));
}

TEST_F(NdiEnum, EndsBehindTheLastAndLeavesTheBuffersAlone)
{
    Write(Identity(XmlContent().Text(L"Ort", L"Halle"), XmlContent().Resource(DescText)));
    OutputBuffer name(20);
    OutputBuffer value(30);

    for (const std::uint32_t index : {1U, 2U, 0xFFFF'FFFFU})
    {
        EXPECT_EQ(EnumNdi(index, name, value), PGSP_ERR_NO_MORE_ITEMS) << index;
    }

    ExpectUntouched(name, 20);
    ExpectUntouched(value, 30);
}

TEST_F(NdiEnum, OfADeviceWithoutTheSectionsIsEmpty)
{
    Write({});
    store.WriteDevice(L"bare", Identity({}, {}));

    EXPECT_THAT(AllNdi(), IsEmpty());
    EXPECT_THAT(AllNdiOf(L"bare"), IsEmpty());
    EXPECT_THAT(AllNdiOf(L"bare", In32), IsEmpty());
}

TEST_F(NdiEnum, NeedsOneCharacterMoreThanNameAndValue)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet)));
    OutputBuffer name(10);
    OutputBuffer value(20);

    EXPECT_EQ(EnumNdi(0, name, value), PGSP_OK);

    EXPECT_EQ(name.text(), L"PropSheet");
    EXPECT_EQ(name.length, 9U);
    EXPECT_EQ(value.text(), L"Seiten.dll,ShowPage");
    EXPECT_EQ(value.length, 19U);
}

TEST_F(NdiEnum, OfANameThatDoesNotFitTellsItsLengthAndLeavesTheValueAlone)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet)));

    for (const std::uint32_t capacity : {9U, 1U, 0U})
    {
        OutputBuffer name(capacity);
        OutputBuffer value(5);

        EXPECT_EQ(EnumNdi(0, name, value), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_TRUE(name.isUntouched());
        EXPECT_EQ(name.length, 9U);
        ExpectUntouched(value, 5);
    }
}

TEST_F(NdiEnum, OfAValueThatDoesNotFitTellsItsLengthBehindTheName)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet)));

    for (const std::uint32_t capacity : {19U, 1U, 0U})
    {
        OutputBuffer name(10);
        OutputBuffer value(capacity);

        EXPECT_EQ(EnumNdi(0, name, value), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_EQ(name.text(), L"PropSheet");
        EXPECT_EQ(name.length, 9U);
        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 19U);
    }
}

TEST_F(NdiEnum, OfAFileThatCanNotBeReadLeavesTheBuffersAlone)
{
    WriteBytes(roots.logDevice(L"broken"), "<LogDevice><Ndi></LogDevice>");
    Write(Ndi(XmlContent().Text(L"Ort", L"Halle")));
    OutputBuffer name(20);
    OutputBuffer value(30);

    EXPECT_EQ(EnumNdiOf(L"gone", 0, name, value), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(EnumNdiOf(L"broken", 0, name, value), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(EnumNdiOf(store.DeviceForPathOf(260).c_str(), 0, name, value), PGSP_ERR_BUFFER_TOO_SHORT);
    OnFreshThread([&] { EXPECT_EQ(EnumNdi(0, name, value), PGSP_ERR_CANT_CREATE_XML_ENGINE); });
    store.TakeDataFolderAway();
    EXPECT_EQ(EnumNdi(0, name, value), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectUntouched(name, 20);
    ExpectUntouched(value, 30);
}

TEST_F(NdiEnum, KnowsDevicesWithCodedNamesByTheirNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Ndi(XmlContent().Text(L"Ort", L"Halle")));

        EXPECT_THAT(AllNdiOf(coded.name), ElementsAre(Pair(L"Ort", L"Halle"))) << ToUtf8(coded.name);
    }
}

TEST_F(NdiEnum, ListsAWholeDeviceOfTheSampleStore)
{
    roots.FillWithSampleStore();

    EXPECT_THAT(AllNdiOf(L"Kesselhaus", In32),
                ElementsAre(Pair(L"enable_delete", L"true"), Pair(L"hidden", L"false"),
                            Pair(L"DefLogDevice", L"L2-AFK220"), Pair(L"VendorName", L"Auental Automation"),
                            Pair(L"OrderCode", L"AFK220-0"), Pair(L"SerialNumber", L"AU-220-00417"),
                            Pair(L"YearOfManufacture", L"2019"), Pair(L"DialogTitle", L"Kesselhaus"),
                            Pair(L"PropSheet", L"AuentalSeiten.dll,ShowFeldbusPage32"),
                            Pair(L"Diagnosis", L"AuentalSeiten.dll,ShowFeldbusDiagnosis32")));
}

} // namespace
} // namespace norvepa::test
