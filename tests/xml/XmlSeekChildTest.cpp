#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using XmlSeekChildTest = PullScene;

TEST_F(XmlSeekChildTest, StopsAtTheStartOfTheChild)
{
    PullReader reader = InsideRoot("<s><a>1</a><b>2</b></s>");

    EXPECT_TRUE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_EQ(NameAt(reader), "b");
    EXPECT_EQ(NextNode(reader), "2");
}

TEST_F(XmlSeekChildTest, FindsAGrandchildAsReadilyAsAChild)
{
    PullReader reader = InsideRoot("<s><x><b>1</b></x><b>2</b></s>");

    EXPECT_TRUE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekChildTest, TheEndTagEndsTheSearch)
{
    PullReader reader = InsideRoot("<root><s><a>1</a></s><b>2</b></root>");
    ASSERT_TRUE(XmlSeekElement(reader, L"s"));

    EXPECT_FALSE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_EQ(NextNode(reader), "<b>");
}

TEST_F(XmlSeekChildTest, TheEndTagOfANestedElementOfThatNameEndsTheSearchToo)
{
    PullReader reader = InsideRoot("<s><s>1</s><b>2</b></s>");

    EXPECT_FALSE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_EQ(NextNode(reader), "<b>");
}

TEST_F(XmlSeekChildTest, OtherEndTagsArePassedOver)
{
    PullReader reader = InsideRoot("<s><x><y>1</y></x><b>2</b></s>");

    EXPECT_TRUE(XmlSeekChild(reader, L"s", L"b"));
}

TEST_F(XmlSeekChildTest, RunsOnBeyondTheParentWhenTheEndNameIsAnothers)
{
    PullReader reader = InsideRoot("<root><s>1</s><b>2</b></root>");
    ASSERT_TRUE(XmlSeekElement(reader, L"s"));

    EXPECT_TRUE(XmlSeekChild(reader, L"root", L"b"));
}

TEST_F(XmlSeekChildTest, AnEmptyElementOfAnotherNameEndsTheSearch)
{
    PullReader reader = InsideRoot("<s><x/><b>1</b></s>");

    EXPECT_FALSE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_EQ(NextNode(reader), "<b>");
}

TEST_F(XmlSeekChildTest, AnEmptyElementOfTheNameItselfEndsTheSearch)
{
    PullReader reader = InsideRoot("<s><b/><b>2</b></s>");

    EXPECT_FALSE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_EQ(NextNode(reader), "<b>");
}

TEST_F(XmlSeekChildTest, AnEmptyGrandchildEndsTheSearch)
{
    PullReader reader = InsideRoot("<s><x><y/></x><b>1</b></s>");

    EXPECT_FALSE(XmlSeekChild(reader, L"s", L"b"));
}

TEST_F(XmlSeekChildTest, BothNamesCompareWithoutRegardToCase)
{
    PullReader reader = InsideRoot("<root><Bindings><Name>1</Name></Bindings><Name>2</Name></root>");
    ASSERT_TRUE(XmlSeekElement(reader, L"bindings"));

    EXPECT_TRUE(XmlSeekChild(reader, L"BINDINGS", L"NAME"));
    EXPECT_FALSE(XmlSeekChild(reader, L"BINDINGS", L"NAME"));
}

TEST_F(XmlSeekChildTest, IgnoresNamespacesAndPrefixes)
{
    PullReader reader = InsideRoot("<p:s xmlns:p='one'><p:x>0</p:x><b>1</b></p:s>");

    EXPECT_TRUE(XmlSeekChild(reader, L"s", L"b"));
    EXPECT_FALSE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_TRUE(XmlReaderActive(reader));
}

TEST_F(XmlSeekChildTest, PassesOverEverythingThatIsNoElement)
{
    PullReader reader = InsideRoot("<s> text <!--<b>--><?b c?><![CDATA[<b></s>]]><b>1</b></s>");

    EXPECT_TRUE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekChildTest, NoChildHasTheEmptyName)
{
    PullReader reader = InsideRoot("<s><b>1</b></s>");

    EXPECT_FALSE(XmlSeekChild(reader, L"s", L""));

    EXPECT_EQ(NextNode(reader), "");
}

TEST_F(XmlSeekChildTest, IsFalseAtTheEndOfTheFile)
{
    PullReader reader = InsideRoot("<s><b>1</b></s>");

    EXPECT_FALSE(XmlSeekChild(reader, L"other", L"c"));

    EXPECT_EQ(reader.State(), XmlReadState_EndOfFile);
}

TEST_F(XmlSeekChildTest, IsFalseAtAMalformedPlace)
{
    PullReader reader = InsideRoot("<s><x></y><b>1</b></s>");

    EXPECT_FALSE(XmlSeekChild(reader, L"s", L"b"));

    EXPECT_FALSE(XmlReaderActive(reader));
}

} // namespace
} // namespace norvepa::test
