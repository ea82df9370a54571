#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

// Which of several places answers.
using GetValueOrder = ReadScene;

TEST_F(GetValueOrder, TheFirstEntryOfANameWins)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent().Element(L"S", XmlContent().Int(L"a", L"1").Text(L"A", L"2").Bool(L"a", L"true"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueOrder, ASectionThatOccursSeveralTimesIsSearchedEachTime)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"S", XmlContent().Text(L"a", L"1"))
                               .Element(L"T", XmlContent().Text(L"b", L"wrong section"))
                               .Element(L"s", XmlContent().Text(L"a", L"2").Text(L"b", L"3"))
                               .Element(L"S", XmlContent().Text(L"c", L"4"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"S", L"b"), Found(L"3"));
    EXPECT_EQ(GetValue(file, L"S", L"c"), Found(L"4"));
}

TEST_F(GetValueOrder, ASectionIsFoundAtAnyDepth)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
        L"Bindings",
        XmlContent().Element(L"Deep", XmlContent().Element(L"S", XmlContent().Text(L"a", L"1"))))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueOrder, EntriesBelowAnElementOfTheSectionCountAsItsOwn)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent().Element(L"Bindings", XmlContent().Subdevice(L"A", XmlContent().Text(L"a", L"1")))));

    EXPECT_EQ(GetValue(file, L"Bindings", L"a"), Found(L"1"));
}

TEST_F(GetValueOrder, TheEndOfASectionNestedInItsOwnNameEndsTheSearch)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
        L"S", XmlContent().Element(L"S", XmlContent().Text(L"a", L"1")).Text(L"b", L"2"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"S", L"b"), NotFound());
}

TEST_F(GetValueOrder, AnEmptyTagAheadOfTheSectionDoesNoHarm)
{
    const std::wstring file = File(LogDeviceFile(XmlContent()
                                                     .EmptyTag(L"LocalSettings")
                                                     .EmptyTag(L"S")
                                                     .Element(L"T", XmlContent().EmptyTag(L"S"))
                                                     .Element(L"S", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueOrder, AnEmptyTagInTheSectionEndsTheSearchOfThatSection)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"S", XmlContent().Text(L"a", L"1").EmptyTag(L"odd").Text(L"b", L"2"))
                               .Element(L"S", XmlContent().Text(L"c", L"3"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"S", L"b"), NotFound());
    EXPECT_EQ(GetValue(file, L"S", L"c"), Found(L"3"));
}

TEST_F(GetValueOrder, AnEmptyValueTagOfAnotherEntryEndsTheSearchOfThatSection)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
        L"S", XmlContent()
                  .Element(L"Parameter", XmlContent().Element(L"Name", L"a").EmptyTag(L"Value"))
                  .Text(L"b", L"2"))));

    EXPECT_EQ(GetValue(file, L"S", L"b"), NotFound());
}

TEST_F(GetValueOrder, AnEmptySectionHoldsNothing)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent().Element(L"S", XmlContent()).Element(L"T", XmlContent().Text(L"a", L"wrong section"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), NotFound());
}

TEST_F(GetValueOrder, CommentsAndWhiteSpaceAreNoObstacle)
{
    const std::wstring file =
        File("<LogDevice>\r\n<!-- <S> --> <S>\r\n\t<!--one-->\r\n<Parameter> <!--two--> "
             "<Name><!--three-->a</Name>\r\n"
             "<?four five?> <Value>\r\n<!--six-->1</Value>\r\n</Parameter></S></LogDevice>");

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

} // namespace
} // namespace norvepa::test
