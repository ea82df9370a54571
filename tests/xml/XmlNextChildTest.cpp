#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using XmlNextChildTest = PullScene;

TEST_F(XmlNextChildTest, DeliversOneElementAfterTheOtherAsTheFileSpellsThem)
{
    PullReader reader = InsideRoot("<s>\r\n<Name>1</Name>\r\n<!--x--><pATH>2</pATH>\r\n</s>");
    std::wstring found;

    EXPECT_TRUE(XmlNextChild(reader, L"s", found));
    EXPECT_EQ(found, L"Name");

    EXPECT_TRUE(XmlNextChild(reader, L"s", found));
    EXPECT_EQ(found, L"pATH");
}

TEST_F(XmlNextChildTest, DeliversGrandchildrenToo)
{
    PullReader reader = InsideRoot("<s><a><b>1</b></a></s>");
    std::wstring found;
    ASSERT_TRUE(XmlNextChild(reader, L"s", found));

    EXPECT_TRUE(XmlNextChild(reader, L"s", found));

    EXPECT_EQ(found, L"b");
}

TEST_F(XmlNextChildTest, TheEndTagEndsTheSearchAndLeavesTheNameAlone)
{
    PullReader reader = InsideRoot("<root><s>text</s><b>1</b></root>");
    ASSERT_TRUE(XmlSeekElement(reader, L"s"));
    std::wstring found = L"before";

    EXPECT_FALSE(XmlNextChild(reader, L"S", found));

    EXPECT_EQ(found, L"before");
    EXPECT_EQ(NextNode(reader), "<b>");
}

TEST_F(XmlNextChildTest, AnEmptyElementEndsTheSearch)
{
    PullReader reader = InsideRoot("<s><a/><b>1</b></s>");
    std::wstring found = L"before";

    EXPECT_FALSE(XmlNextChild(reader, L"s", found));

    EXPECT_EQ(found, L"before");
    EXPECT_TRUE(XmlNextChild(reader, L"s", found));
}

TEST_F(XmlNextChildTest, IsFalseAtTheEndOfTheFileAndAtAMalformedPlace)
{
    PullReader whole = InsideRoot("<s>1</s>");
    std::wstring found;
    EXPECT_FALSE(XmlNextChild(whole, L"other", found));
    EXPECT_EQ(whole.State(), XmlReadState_EndOfFile);

    PullReader broken = InsideRoot("<s></t><a>1</a></s>");
    EXPECT_FALSE(XmlNextChild(broken, L"s", found));
    EXPECT_EQ(broken.State(), XmlReadState_Error);
}

} // namespace
} // namespace norvepa::test
