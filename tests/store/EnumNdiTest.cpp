#include "store/LinkScene.h"

namespace norvepa::test
{
namespace
{

class EnumNdiTest : public ReadScene
{
protected:
    [[nodiscard]] static Item At(const std::wstring& file, std::uint32_t index, int wide = In64)
    {
        Item item{PGSP_OK, std::wstring(Before), std::wstring(Before)};
        item.result = NorvXMLEnumNdi(file.c_str(), index, &item.name, &item.value, wide);
        return item;
    }

    // All items up to the end, as "name=value".
    [[nodiscard]] static std::vector<std::wstring> All(const std::wstring& file, int wide = In64)
    {
        std::vector<std::wstring> items;
        Item item = At(file, 0, wide);
        while (item.result == PGSP_OK)
        {
            items.push_back(item.name + L"=" + item.value);
            item = At(file, static_cast<std::uint32_t>(items.size()), wide);
        }
        EXPECT_EQ(item, Past());
        return items;
    }

    [[nodiscard]] static Item Past() { return NoItem(PGSP_ERR_NO_MORE_ITEMS); }

    // The one item of a file whose `Ndi` holds this.
    [[nodiscard]] Item OnlyItem(const XmlContent& element) const
    {
        const std::wstring file = File(LogDeviceFile(XmlContent().Element(L"Ndi", element)));
        EXPECT_EQ(At(file, 1), Past());
        return At(file, 0);
    }

    [[nodiscard]] Item OnlyLink(const Link& link) const
    {
        return OnlyItem(XmlContent().ParameterAssemblyLink(link));
    }
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(EnumNdiTest, CountsOverSeveralSectionsInDocumentOrder)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"UserInterface64", XmlContent().Text(L"a", L"1").Int(L"b", L"2"))
                               .Element(L"Ndi", XmlContent().Bool(L"c", L"true"))
                               .Element(L"LocalSettings", XmlContent().Text(L"no", L"0"))
                               .Element(L"UserInterface64", XmlContent().Text(L"d", L"4"))
                               .Element(L"Ndi", XmlContent().Text(L"e", L"5"))));

    EXPECT_THAT(All(file), ElementsAre(L"a=1", L"b=2", L"c=true", L"d=4", L"e=5"));
}

TEST_F(EnumNdiTest, WideChoosesTheSectionOfLinksBesideNdi)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"UserInterface", XmlContent().Text(L"a", L"32"))
                               .Element(L"Ndi", XmlContent().Text(L"b", L"both"))
                               .Element(L"UserInterface64", XmlContent().Text(L"c", L"64"))));

    EXPECT_THAT(All(file, In64), ElementsAre(L"b=both", L"c=64"));
    EXPECT_THAT(All(file, In32), ElementsAre(L"a=32", L"b=both"));
    EXPECT_THAT(All(file, -1), ElementsAre(L"a=32", L"b=both"));
}

TEST_F(EnumNdiTest, FourElementWordsCountAndNoOther)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent().Element(L"Ndi", XmlContent()
                                         .Comment(L"no item")
                                         .Text(L"a", L"1")
                                         .Resource({.name = L"DescText", .assembly = L"T.dll"})
                                         .Int(L"b", L"2")
                                         .Entry(L"parameter", L"no", L"0")
                                         .Bool(L"c", L"true")
                                         .Entry(L"ParameterText", L"no", L"0")
                                         .ParameterAssemblyLink({.name = L"d", .assembly = L"D.dll"})
                                         .Entry(L"Load", L"no", L"0"))));

    EXPECT_THAT(All(file), ElementsAre(L"a=1", L"b=2", L"c=true", L"d=D.dll,"));
}

TEST_F(EnumNdiTest, SectionsAreOfExactCaseAndBelowTheRoot)
{
    EXPECT_THAT(All(File(LogDeviceFile(XmlContent()
                                           .Element(L"ndi", XmlContent().Text(L"a", L"1"))
                                           .Element(L"Userinterface64", XmlContent().Text(L"b", L"2"))))),
                IsEmpty());
    EXPECT_THAT(All(File("<Ndi>" + XmlContent().Text(L"a", L"1").utf8() + "</Ndi>")), IsEmpty());
}

TEST_F(EnumNdiTest, ASectionIsFoundAtAnyDepth)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
        L"Bindings",
        XmlContent().Subdevice(L"A", XmlContent().Element(L"Ndi", XmlContent().Text(L"a", L"1"))))));

    EXPECT_THAT(All(file), ElementsAre(L"a=1"));
}

TEST_F(EnumNdiTest, OnlyChildrenOfASectionCount)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
        L"Ndi", XmlContent().Element(L"Group", XmlContent().Text(L"a", L"1")).Text(L"b", L"2"))));

    EXPECT_THAT(All(file), ElementsAre(L"b=2"));
}

TEST_F(EnumNdiTest, TheNameAndTheValueAreAsTheyStand)
{
    EXPECT_EQ(OnlyItem(XmlContent().Text(L"Größe <1>", L"50 % & mehr")),
              (Item{PGSP_OK, L"Größe <1>", L"50 % & mehr"}));
}

TEST_F(EnumNdiTest, AValueGoesAheadOfALink)
{
    EXPECT_EQ(OnlyItem(XmlContent().Element(L"ParameterAssemblyLink", XmlContent()
                                                                          .Element(L"Name", L"a")
                                                                          .Element(L"Assembly", L"A.dll")
                                                                          .Element(L"Function", L"Zeige")
                                                                          .Element(L"Value", L"v"))),
              (Item{PGSP_OK, L"a", L"v"}));
}

TEST_F(EnumNdiTest, ALinksValueIsItsAssemblyAndItsFunction)
{
    EXPECT_EQ(OnlyLink({.name = L"a", .assembly = L"A.dll", .path = L"p", .function = L"Zeige"}),
              (Item{PGSP_OK, L"a", L"A.dll,Zeige"}));
}

TEST_F(EnumNdiTest, AnEmptyValueIsNone)
{
    EXPECT_EQ(OnlyItem(XmlContent().Element(L"Parameter", XmlContent()
                                                              .Element(L"Name", L"a")
                                                              .Element(L"Value", L"")
                                                              .Element(L"Assembly", L"A.dll")
                                                              .Element(L"Function", L"Zeige"))),
              (Item{PGSP_OK, L"a", L"A.dll,Zeige"}));
}

TEST_F(EnumNdiTest, WithoutAFunctionTheCommaStays)
{
    EXPECT_EQ(OnlyLink({.name = L"a", .assembly = L"A.dll"}), (Item{PGSP_OK, L"a", L"A.dll,"}));
}

TEST_F(EnumNdiTest, WithoutAnAssemblyTheValueIsEmpty)
{
    EXPECT_EQ(OnlyLink({.name = L"a", .path = L"p", .function = L"Zeige"}), (Item{PGSP_OK, L"a", L""}));
    EXPECT_EQ(OnlyLink({.name = L"a", .assembly = L"", .function = L"Zeige"}), (Item{PGSP_OK, L"a", L""}));
}

TEST_F(EnumNdiTest, AnElementThatHoldsNothingIsAnItemWithoutANameAllTheSame)
{
    EXPECT_EQ(OnlyItem(XmlContent().EmptyTag(L"Parameter")), (Item{PGSP_OK, L"", L""}));
}

TEST_F(EnumNdiTest, PastTheEndTheOutputsAreUntouched)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent().Element(L"Ndi", XmlContent().Text(L"a", L"1").Text(L"b", L"2"))));

    EXPECT_EQ(At(file, 1), (Item{PGSP_OK, L"b", L"2"}));
    EXPECT_EQ(At(file, 2), Past());
    EXPECT_EQ(At(file, 0xFFFFFFFF), Past());
}

} // namespace
} // namespace norvepa::test
