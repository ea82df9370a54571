#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using XmlReaderActiveTest = PullScene;

TEST_F(XmlReaderActiveTest, IsFalseForAReaderWithoutAFile)
{
    EXPECT_FALSE(XmlReaderActive(PullReader()));
}

TEST_F(XmlReaderActiveTest, IsFalseAfterAFailedOpen)
{
    PullReader reader;
    ASSERT_EQ(reader.Open(file()), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsTrueAheadOfTheFirstStep)
{
    const PullReader reader = Reading("<a/>");

    EXPECT_EQ(reader.State(), XmlReadState_Initial);
    EXPECT_TRUE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsTrueBetweenTwoNodes)
{
    const PullReader reader = InsideRoot("<a><b/></a>");

    EXPECT_EQ(reader.State(), XmlReadState_Interactive);
    EXPECT_TRUE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsTrueOnAnAttribute)
{
    PullReader reader = InsideRoot("<a Param='1'></a>");
    ASSERT_TRUE(reader.MoveToFirstAttribute());

    EXPECT_TRUE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsTrueOnTheLastNode)
{
    PullReader reader = Reading("<a></a>");
    ASSERT_EQ(NextNode(reader), "<a>");
    ASSERT_EQ(NextNode(reader), "</a>");

    EXPECT_TRUE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsFalseOnceTheEndOfTheFileIsMet)
{
    PullReader reader = Reading("<a></a>");
    ASSERT_EQ(RestOf(reader), "<a> </a>");

    EXPECT_EQ(reader.State(), XmlReadState_EndOfFile);
    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsFalseOnceAMalformedPlaceIsMet)
{
    PullReader reader = Reading("<a><b></a>");
    ASSERT_EQ(RestOf(reader), "<a> <b>");

    EXPECT_EQ(reader.State(), XmlReadState_Error);
    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsFalseOnceADoctypeIsMet)
{
    PullReader reader = Reading("<!DOCTYPE a><a/>");
    ASSERT_EQ(RestOf(reader), "");

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsFalseOnceAFileOfNoBytesHasBeenRead)
{
    PullReader reader = Reading("");
    ASSERT_TRUE(XmlReaderActive(reader));
    ASSERT_EQ(RestOf(reader), "");

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, IsFalseOnceAFileThatIsNoXmlHasBeenRead)
{
    PullReader reader = Reading("[Settings]\r\nbaudrate=9600\r\n");
    ASSERT_EQ(RestOf(reader), "");

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(XmlReaderActiveTest, StaysFalse)
{
    PullReader reader = Reading("<a></wrong><b/>");
    ASSERT_EQ(RestOf(reader), "<a>");

    EXPECT_EQ(NextNode(reader), "");

    EXPECT_FALSE(XmlReaderActive(reader));
}

} // namespace
} // namespace norvepa::test
