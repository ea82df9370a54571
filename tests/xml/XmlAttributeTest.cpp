#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using XmlSeekAttributeTest = PullScene;
using XmlGetAttributeTest = PullScene;

TEST_F(XmlSeekAttributeTest, StopsOnTheAttribute)
{
    PullReader reader = InsideRoot("<e first='1' second='2' third='3'></e>");

    EXPECT_TRUE(XmlSeekAttribute(reader, L"second"));

    EXPECT_EQ(NameAt(reader), "second");
    EXPECT_EQ(reader.Value(), L"2");
}

TEST_F(XmlSeekAttributeTest, ComparesWithoutRegardToCase)
{
    PullReader reader = InsideRoot("<e SubdevName='1'></e>");

    EXPECT_TRUE(XmlSeekAttribute(reader, L"SUBDEVNAME"));
}

TEST_F(XmlSeekAttributeTest, IgnoresPrefixes)
{
    PullReader reader = InsideRoot("<e xmlns:p='one' p:Param='1'></e>");

    EXPECT_TRUE(XmlSeekAttribute(reader, L"Param"));

    EXPECT_EQ(reader.Value(), L"1");
}

TEST_F(XmlSeekAttributeTest, BeginsAtTheFirstOneWhereverTheReaderStands)
{
    PullReader reader = InsideRoot("<e first='1' second='2'></e>");
    ASSERT_TRUE(XmlSeekAttribute(reader, L"second"));

    EXPECT_TRUE(XmlSeekAttribute(reader, L"first"));
}

TEST_F(XmlSeekAttributeTest, IsBackOnTheElementWhenThereIsNone)
{
    PullReader reader = InsideRoot("<e first='1' second='2'></e>");

    EXPECT_FALSE(XmlSeekAttribute(reader, L"third"));

    EXPECT_EQ(NameAt(reader), "e");
    EXPECT_TRUE(XmlReaderActive(reader));
}

TEST_F(XmlSeekAttributeTest, AnElementWithoutAttributesHasNone)
{
    PullReader reader = InsideRoot("<e></e>");

    EXPECT_FALSE(XmlSeekAttribute(reader, L"first"));

    EXPECT_EQ(NameAt(reader), "e");
}

TEST_F(XmlSeekAttributeTest, LooksAtNoOtherElement)
{
    PullReader reader = InsideRoot("<e><f first='1'></f></e>");

    EXPECT_FALSE(XmlSeekAttribute(reader, L"first"));

    EXPECT_EQ(NextNode(reader), "<f>");
}

TEST_F(XmlGetAttributeTest, ReadsTheValueAndIsBackOnTheElement)
{
    PullReader reader = InsideRoot("<e first='1' Param='Baud_Rate'>2</e>");
    std::wstring value;

    EXPECT_TRUE(XmlGetAttribute(reader, L"param", value));

    EXPECT_EQ(value, L"Baud_Rate");
    EXPECT_EQ(NameAt(reader), "e");
    EXPECT_EQ(NextNode(reader), "2");
}

TEST_F(XmlGetAttributeTest, EntitiesAndLettersOfAllAlphabetsComeAsTheyStandFor)
{
    PullReader reader = InsideRoot("<e Param='Größe &lt;&amp;&quot;&#x3A9;'></e>");
    std::wstring value;

    EXPECT_TRUE(XmlGetAttribute(reader, L"Param", value));

    EXPECT_EQ(value, L"Größe <&\"Ω");
}

TEST_F(XmlGetAttributeTest, AnEmptyValueIsAValue)
{
    PullReader reader = InsideRoot("<e Param=''></e>");
    std::wstring value = L"before";

    EXPECT_TRUE(XmlGetAttribute(reader, L"Param", value));

    EXPECT_EQ(value, L"");
}

TEST_F(XmlGetAttributeTest, LeavesTheValueAloneWhenThereIsNone)
{
    PullReader reader = InsideRoot("<e first='1'></e>");
    std::wstring value = L"before";

    EXPECT_FALSE(XmlGetAttribute(reader, L"Param", value));

    EXPECT_EQ(value, L"before");
}

TEST_F(XmlGetAttributeTest, ReadsTheAttributesOfAnEmptyElement)
{
    PullReader reader = InsideRoot("<e Param='1'/>");
    std::wstring value;

    EXPECT_TRUE(XmlGetAttribute(reader, L"Param", value));

    EXPECT_EQ(value, L"1");
}

} // namespace
} // namespace norvepa::test
