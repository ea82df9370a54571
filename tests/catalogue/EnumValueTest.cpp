#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class EnumValue : public CatalogueScene
{
protected:
    [[nodiscard]] static PairAnswer Value(const std::wstring& file, std::uint32_t index)
    {
        return PairOf([&](const PairBuffers& pair) { return NorvXMLEnumValue(file.c_str(), index, pair); });
    }

    // All pairs up to the end, each as name=value.
    [[nodiscard]] static std::vector<std::wstring> List(const std::wstring& file)
    {
        std::vector<std::wstring> list;
        PairAnswer answer = Value(file, 0);
        while (answer.result == PGSP_OK)
        {
            list.push_back(answer.name + L"=" + answer.value);
            answer = Value(file, static_cast<std::uint32_t>(list.size()));
        }
        EXPECT_EQ(answer, NoPair());
        return list;
    }

    // A file whose root has no attributes.
    [[nodiscard]] static std::string Plain(const XmlContent& content)
    {
        return XmlFile(L"LogDevice", {}, content);
    }
};

TEST_F(EnumValue, GoesThroughTheSectionsInTheirFixedOrder)
{
    XmlContent sections;
    for (const std::wstring_view section :
         {L"Ndi", L"Parameters", L"Install", L"BoardAttributes", L"SpareSection", L"Bindings",
          L"NetworkSettings", L"LocalSettings", L"DeviceHeader", L"UserInterface"})
    {
        sections.Element(section, XmlContent().Text(L"of", section));
    }

    EXPECT_THAT(List(File(Plain(sections))),
                ElementsAre(L"of=DeviceHeader", L"of=LocalSettings", L"of=NetworkSettings", L"of=Bindings",
                            L"of=SpareSection", L"of=BoardAttributes", L"of=Install", L"of=Parameters"));
}

TEST_F(EnumValue, GoesThroughASectionByTagNumberAndThenInTheFilesOrder)
{
    const XmlContent entries = XmlContent()
                                   .Int(L"i", L"1")
                                   .Bool(L"b", L"true")
                                   .Text(L"t", L"1")
                                   .Int(L"i", L"2")
                                   .Text(L"t", L"2")
                                   .Entry(L"Resource", L"no", L"entry");

    EXPECT_THAT(List(File(Plain(XmlContent().Element(L"Install", entries)))),
                ElementsAre(L"t=1", L"t=2", L"b=true", L"i=1", L"i=2"));
}

TEST_F(EnumValue, TakesTheNearestSectionOfAWordOnly)
{
    const XmlContent sections =
        XmlContent()
            .Element(L"Bindings", XmlContent().Element(L"Install", XmlContent().Text(L"deep", L"1")))
            .Element(L"Install", XmlContent().Text(L"near", L"2"))
            .Element(L"Install", XmlContent().Text(L"second", L"3"));

    EXPECT_THAT(List(File(Plain(sections))), ElementsAre(L"near=2"));
}

TEST_F(EnumValue, PassesOverEntriesThatLackNameOrValue)
{
    const XmlContent entries =
        XmlContent()
            .Element(L"Parameter", XmlContent().Element(L"Name", L"a"))
            .Element(L"Parameter", XmlContent().Element(L"Value", L"1"))
            .Element(L"Parameter", L"")
            .Element(
                L"Parameter",
                XmlContent().Element(L"Value", L"first").Element(L"Value", L"second").Element(L"Name", L"b"))
            .Text(L"", L"");

    EXPECT_THAT(List(File(Plain(XmlContent().Element(L"Install", entries)))), ElementsAre(L"b=first", L"="));
}

TEST_F(EnumValue, EndsWithTheRootsAttributesByTheirNumbersAndInTheVocabularysSpelling)
{
    const std::string file = XmlFile(
        L"Device",
        {{L"Name", L"7"}, {L"unknown", L"0"}, {L"DeviceID", L"3"}, {L"cp_type", L"2"}, {L"Alias", L"1"}},
        XmlContent().Element(L"Install", XmlContent().Text(L"a", L"b")));

    EXPECT_THAT(List(File(file)), ElementsAre(L"a=b", L"Alias=1", L"CP_TYPE=2", L"DeviceId=3", L"Name=7"));
}

TEST_F(EnumValue, DeliversPairsByAnyIndexInAnyOrder)
{
    const std::wstring file = File(Plain(
        XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1").Text(L"b", L"2").Text(L"c", L"3"))));

    EXPECT_EQ(Value(file, 2), Found(L"c", L"3"));
    EXPECT_EQ(Value(file, 1), Found(L"b", L"2"));
    EXPECT_EQ(Value(file, 0), Found(L"a", L"1"));
    EXPECT_EQ(Value(file, 2), Found(L"c", L"3"));
}

TEST_F(EnumValue, HasNoItemsInAFileWithoutParametersAndRootAttributes)
{
    const std::wstring file = File(Plain(XmlContent().Element(L"Install", XmlContent())));

    EXPECT_THAT(List(file), IsEmpty());
    EXPECT_EQ(Value(file, 1), NoPair());
}

TEST_F(EnumValue, KeepsFurtherSemicolonsInTheValue)
{
    const std::wstring file =
        File(Plain(XmlContent().Element(L"Install", XmlContent().Text(L"x", L"").Text(L"a", L"b;c;"))));

    EXPECT_EQ(Value(file, 1), Found(L"a", L"b;c;")) << "as built";
    EXPECT_EQ(Value(file, 1), Found(L"a", L"b;c;")) << "from the cache";
}

TEST_F(EnumValue, SplitsAtASemicolonOfTheNameOnceItIsCached)
{
    const std::wstring file =
        File(Plain(XmlContent().Element(L"Install", XmlContent().Text(L"x", L"1").Text(L"a;b", L"c"))));

    EXPECT_EQ(Value(file, 1), Found(L"a;b", L"c")) << "as built";
    EXPECT_EQ(Value(file, 1), Found(L"a", L"b;c")) << "from the cache";
    EXPECT_EQ(Value(file, 0), Found(L"x", L"1"));
}

} // namespace
} // namespace norvepa::test
