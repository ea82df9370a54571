#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using XmlSeekElementTest = PullScene;

TEST_F(XmlSeekElementTest, StopsAtTheStartOfTheElement)
{
    PullReader reader = Reading("<root><a>1</a><b>2</b></root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"b"));

    EXPECT_EQ(NameAt(reader), "b");
    EXPECT_EQ(NextNode(reader), "2");
}

TEST_F(XmlSeekElementTest, FindsTheRoot)
{
    PullReader reader = Reading("<root>1</root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"root"));

    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekElementTest, FindsAnElementAtAnyDepth)
{
    PullReader reader = Reading("<root><a><b><c>1</c></b></a></root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"c"));

    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekElementTest, FindsTheNextOneWhenAskedAgain)
{
    PullReader reader = Reading("<root><a>1</a><a>2</a></root>");
    ASSERT_TRUE(XmlSeekElement(reader, L"a"));

    EXPECT_TRUE(XmlSeekElement(reader, L"a"));

    EXPECT_EQ(NextNode(reader), "2");
}

TEST_F(XmlSeekElementTest, FindsAnElementOfItsOwnNameInside)
{
    PullReader reader = Reading("<a><a>1</a></a>");
    ASSERT_TRUE(XmlSeekElement(reader, L"a"));

    EXPECT_TRUE(XmlSeekElement(reader, L"a"));

    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekElementTest, ComparesWithoutRegardToCase)
{
    PullReader reader = Reading("<root><LocalSettings>1</LocalSettings></root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"LOCALsettings"));
}

TEST_F(XmlSeekElementTest, ComparesLettersOfAllAlphabetsWithoutRegardToCase)
{
    PullReader reader = Reading("<root><Größe>1</Größe></root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"GRÖßE"));
}

TEST_F(XmlSeekElementTest, IgnoresNamespacesAndPrefixes)
{
    PullReader reader = Reading("<p:root xmlns:p='one' xmlns='two'><p:a>1</p:a></p:root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"a"));

    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekElementTest, DoesNotTakeAnAttributeForAnElement)
{
    PullReader reader = Reading("<root a='1'>2</root>");

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlSeekElementTest, IsNotContentWithAPartOfTheName)
{
    PullReader reader = Reading("<root><UserInterface64>1</UserInterface64></root>");

    EXPECT_FALSE(XmlSeekElement(reader, L"UserInterface"));
}

TEST_F(XmlSeekElementTest, NoElementHasTheEmptyName)
{
    PullReader reader = Reading("<root><a>1</a></root>");

    EXPECT_FALSE(XmlSeekElement(reader, L""));

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlSeekElementTest, AnEmptyElementOfAnotherNameEndsTheCallButNotTheReader)
{
    PullReader reader = Reading("<root><x/><a>1</a></root>");

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));

    EXPECT_TRUE(XmlReaderActive(reader));
    EXPECT_TRUE(XmlSeekElement(reader, L"a"));
}

TEST_F(XmlSeekElementTest, AnEmptyElementOfTheNameItselfIsNoMatch)
{
    PullReader reader = Reading("<root><a/><a>2</a></root>");

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));

    EXPECT_TRUE(XmlSeekElement(reader, L"a"));
    EXPECT_EQ(NextNode(reader), "2");
}

TEST_F(XmlSeekElementTest, AnEmptyElementWithAttributesIsEmptyToo)
{
    PullReader reader = Reading("<root><a Param='1'/><a>2</a></root>");

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));

    EXPECT_TRUE(XmlSeekElement(reader, L"a"));
}

TEST_F(XmlSeekElementTest, AnElementOfTwoTagsWithNothingBetweenIsAMatch)
{
    PullReader reader = Reading("<root><a></a></root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"a"));

    EXPECT_EQ(NextNode(reader), "</a>");
}

TEST_F(XmlSeekElementTest, PassesOverEverythingThatIsNoElement)
{
    PullReader reader =
        Reading("<?xml version='1.0'?><!--a--><?a b?><root> <![CDATA[<a>]]>a<!--<a>--><a>1</a></root>");

    EXPECT_TRUE(XmlSeekElement(reader, L"a"));

    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekElementTest, IsFalseAtTheEndOfTheFile)
{
    PullReader reader = Reading("<root>1</root>");

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));

    EXPECT_EQ(reader.State(), XmlReadState_EndOfFile);
}

TEST_F(XmlSeekElementTest, IsFalseAtAMalformedPlace)
{
    PullReader reader = Reading("<root><b></wrong><a>1</a></root>");

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlSeekElementTest, IsFalseForAReaderWithoutAFile)
{
    PullReader reader;

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));
}

} // namespace
} // namespace norvepa::test
