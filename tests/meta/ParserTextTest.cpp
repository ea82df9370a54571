#include "meta/MetaScene.h"

namespace norvepa::test
{
namespace
{

using ParserText = MetaScene;

TEST_F(ParserText, IsTheReadersWithItsReferencesResolved)
{
    EXPECT_EQ(Document(XmlFile(L"Value", {}, XmlContent().Characters(L"<Größe & \"Ω\">"))),
              ToUtf8(L"Value=\"<Größe & \"Ω\">\""));
    EXPECT_EQ(Document("<Value>&#65;&#x42;</Value>"), R"(Value="AB")");
}

TEST_F(ParserText, SplitByACommentIsTheLastPart)
{
    EXPECT_EQ(Document("<Value>before<!-- odd -->after</Value>"), R"(Value="after")");
}

TEST_F(ParserText, SplitByAnElementIsTheLastPart)
{
    EXPECT_EQ(Document("<Constraints>before<min>1</min>after</Constraints>"),
              R"(Constraints="after"[min="1"])");
}

TEST_F(ParserText, IsNotReplacedByWhiteSpace)
{
    EXPECT_EQ(Document("<Constraints>before<min>1</min>\r\n  </Constraints>"),
              R"(Constraints="before"[min="1"])");
}

TEST_F(ParserText, InCDataLeavesNone)
{
    EXPECT_EQ(Document("<Profile><min><![CDATA[1]]></min><max>2<![CDATA[3]]></max></Profile>"),
              R"(Profile[max="2" min])");
}

TEST_F(ParserText, KeepsTheWhiteSpaceAroundIt)
{
    EXPECT_EQ(Document("<Value> \t1 2\n </Value>"), "Value=\" \t1 2\n \"");
}

TEST_F(ParserText, OfWhiteSpaceAloneIsNone)
{
    EXPECT_EQ(Document("<Value> \t\r\n </Value>"), "Value");
}

TEST_F(ParserText, OfAnUnknownElementGoesToTheOneAroundIt)
{
    EXPECT_EQ(Document("<Profile>known<odd>unknown</odd></Profile>"), R"(Profile="unknown")");
}

TEST_F(ParserText, BehindAnEmptyElementWithAttributesGoesToThatElement)
{
    EXPECT_EQ(Document("<Profile><Constraints><ParamSection Param='a'/>text</Constraints></Profile>"),
              R"(Profile[Constraints[ParamSection{Param=a}="text"]])");
}

TEST_F(ParserText, MayBeLongerThanAnyBuffer)
{
    const std::string text(300'000, 'x');

    EXPECT_EQ(Document("<Value Name='" + text + "'>" + text + "</Value>"),
              "Value{Name=" + text + "}=\"" + text + "\"");
}

} // namespace
} // namespace norvepa::test
