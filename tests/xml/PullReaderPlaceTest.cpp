// What can be asked of a reader by where it stands.

#include "xml/EngineMethod.h"
#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

class PullReaderPlace : public PullScene
{
protected:
    // A reader on the first node of this type.
    [[nodiscard]] PullReader OnA(XmlNodeType wanted, std::string_view bytes) const
    {
        PullReader reader = Reading(bytes);
        XmlNodeType type = XmlNodeType_None;
        while (reader.Read(type) && type != wanted)
        {
        }
        EXPECT_EQ(type, wanted);
        return reader;
    }
};

TEST_F(PullReaderPlace, OutsideOfAnElementHasNoAttributes)
{
    constexpr std::string_view bytes = "<?xml version='1.0'?><a b='1'><!--c-->text <?odd x='1'?></a>";
    for (const XmlNodeType type : {XmlNodeType_XmlDeclaration, XmlNodeType_Comment, XmlNodeType_Text,
                                   XmlNodeType_ProcessingInstruction, XmlNodeType_EndElement})
    {
        PullReader reader = OnA(type, bytes);

        EXPECT_FALSE(reader.MoveToFirstAttribute()) << type;
        EXPECT_FALSE(reader.MoveToNextAttribute()) << type;
        EXPECT_EQ(reader.lastStatus(), S_FALSE) << type;
    }
}

TEST_F(PullReaderPlace, AheadOfTheFirstNodeAndBehindTheLastHasNoAttributes)
{
    PullReader reader = Reading("<a b='1'/>");
    EXPECT_FALSE(reader.MoveToFirstAttribute());
    EXPECT_FALSE(reader.IsEmptyElement());

    ASSERT_EQ(RestOf(reader), "<a/>");

    EXPECT_FALSE(reader.MoveToFirstAttribute());
    EXPECT_FALSE(reader.MoveToNextAttribute());
    EXPECT_FALSE(reader.IsEmptyElement());
}

TEST_F(PullReaderPlace, OnAnAttributeIsNoEmptyElement)
{
    PullReader reader = OnA(XmlNodeType_Element, "<a b='1' c='2'/>");
    ASSERT_TRUE(reader.IsEmptyElement());

    ASSERT_TRUE(reader.MoveToFirstAttribute());
    EXPECT_FALSE(reader.IsEmptyElement());
    EXPECT_EQ(reader.LocalName(), L"b");
    EXPECT_EQ(reader.Value(), L"1");

    reader.MoveToElement();
    EXPECT_TRUE(reader.IsEmptyElement());
    EXPECT_EQ(reader.LocalName(), L"a");
    EXPECT_EQ(reader.Value(), L"");
}

TEST_F(PullReaderPlace, GoesFromOneAttributeToTheNextAndStaysOnTheLast)
{
    PullReader reader = OnA(XmlNodeType_Element, "<a b='1' c='2'><d e='3'/></a>");

    ASSERT_TRUE(reader.MoveToNextAttribute()); // which is the first
    EXPECT_EQ(reader.LocalName(), L"b");
    ASSERT_TRUE(reader.MoveToNextAttribute());
    EXPECT_EQ(reader.LocalName(), L"c");
    EXPECT_FALSE(reader.MoveToNextAttribute());
    EXPECT_EQ(reader.LocalName(), L"c");

    ASSERT_TRUE(reader.MoveToFirstAttribute());
    EXPECT_EQ(reader.LocalName(), L"b");
}

TEST_F(PullReaderPlace, LeavesTheAttributesWithTheNextStep)
{
    PullReader reader = OnA(XmlNodeType_Element, "<a b='1'><c/></a>");
    ASSERT_TRUE(reader.MoveToFirstAttribute());

    EXPECT_EQ(NextNode(reader), "<c/>");
    EXPECT_FALSE(reader.MoveToFirstAttribute());
}

TEST_F(PullReaderPlace, StaysBehindTheLastNode)
{
    PullReader reader = Reading("<a/>");
    XmlNodeType type = XmlNodeType_None;
    ASSERT_TRUE(reader.Read(type));

    EXPECT_TRUE(XmlReaderActive(reader));
    for (int times = 0; times < 3; ++times)
    {
        EXPECT_FALSE(reader.Read(type));
        EXPECT_EQ(reader.State(), XmlReadState_EndOfFile);
    }
}

TEST_F(PullReaderPlace, WithoutAFileIsClosed)
{
    PullReader reader;
    XmlNodeType type = XmlNodeType_None;

    EXPECT_EQ(reader.State(), XmlReadState_Closed);
    EXPECT_FALSE(XmlReaderActive(reader));
    EXPECT_FALSE(reader.Read(type));
}

TEST_F(PullReaderPlace, OnAnAttributeThatTheEngineDoesNotTellHasNone)
{
    const EngineMethod untold(SlotOf(&IXmlReader::GetPrefix), E_FAIL);
    PullReader reader = OnA(XmlNodeType_Element, "<a b='1'/>");

    ASSERT_TRUE(reader.MoveToFirstAttribute());

    EXPECT_FALSE(reader.CurrentAttribute());
}

TEST_F(PullReaderPlace, PassesOnWhyTheEngineHasNoAttribute)
{
    const EngineMethod failing(SlotOf(&IXmlReader::MoveToFirstAttribute), E_FAIL);
    PullReader reader = OnA(XmlNodeType_Element, "<a b='1'/>");

    EXPECT_FALSE(reader.MoveToFirstAttribute());

    EXPECT_EQ(reader.lastStatus(), E_FAIL);
}

TEST_F(PullReaderPlace, IsKeptByACopyOfItsOwn)
{
    PullReader reader = OnA(XmlNodeType_Element, "<a><b/><c/></a>");
    PullReader other = reader;

    EXPECT_EQ(NextNode(reader), "<b/>");
    EXPECT_EQ(NextNode(reader), "<c/>");
    EXPECT_EQ(NextNode(other), "<b/>");
}

} // namespace
} // namespace norvepa::test
