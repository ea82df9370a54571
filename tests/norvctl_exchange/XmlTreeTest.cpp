#include "norvctl/XmlTree.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{
namespace
{

using norvctl::ParseXml;

constexpr const char* WholeXml =
    "<?xml version='1.0'?>\r\n<!-- < -->\n<p:Root xmlns:p='u' a = \"1 &lt; 2\">\r\n"
    "<Empty/><Text>a&amp;b&#x3A9;&#937;&#x1F600;\r\nc<![CDATA[<&>]]></Text></p:Root>\n"
    "<!-- end -->  ";

TEST(AnXmlTree, HoldsNamesAttributesAndTexts)
{
    const auto root = ParseXml(WholeXml);

    ASSERT_TRUE(root);
    EXPECT_EQ(root->name, "Root");
    EXPECT_EQ(root->attributes.at(1).name, "a");
    EXPECT_EQ(root->attributes.at(1).value, "1 < 2");
    EXPECT_EQ(root->children.at(0).name, "Empty");
    EXPECT_EQ(root->children.at(1).text, "a&b\xCE\xA9\xCE\xA9\xF0\x9F\x98\x80\nc<&>");
}

TEST(AnXmlTree, IsReadWithAMarkAndFromUtf16)
{
    const std::string utf16("\xFF\xFE<\0A\0>\0\xA9\x03<\0/\0A\0>\0", 18);

    EXPECT_TRUE(ParseXml("\xEF\xBB\xBF<A/>"));
    ASSERT_TRUE(ParseXml(utf16));
    EXPECT_EQ(ParseXml(utf16)->text, "\xCE\xA9");
}

TEST(AnXmlTree, IsNotMadeOfAFileThatIsCutOff)
{
    const std::string whole = WholeXml;
    const std::size_t end = whole.find("</p:Root>") + 9;
    for (std::size_t length = 0; length < end; ++length)
    {
        EXPECT_FALSE(ParseXml(whole.substr(0, length))) << length;
    }
}

TEST(AnXmlTree, IsNotMadeOfWhatIsNotWellFormed)
{
    for (const char* const bytes :
         {"", "text", "<A>", "<A></B>", "<A/><B/>", "<A/>text", "<A b/>", "<A b=1/>", "<A b='<'/>",
          "<A b='1'c='2'/>", "<A>&unknown;</A>", "<A>&#0;</A>", "<A>&#xD800;</A>", "<A>&</A>", "<A>\xC3</A>",
          "<!DOCTYPE A><A/>", "<A><!-- </A>", "< A/>", "<A><![CDATA[</A>"})
    {
        EXPECT_FALSE(ParseXml(bytes)) << bytes;
    }
}

TEST(AnXmlTree, IsNotMadeOfWhatIsNestedDeeperThanAnyFile)
{
    std::string deep;
    for (int i = 0; i < 100'000; ++i)
    {
        deep += "<A>";
    }

    EXPECT_FALSE(ParseXml(deep));
}

} // namespace
} // namespace norvepa::test
