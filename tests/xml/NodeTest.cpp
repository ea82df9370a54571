#include "support/XmlMeaning.h"
#include "xml/DocumentScene.h"

namespace norvepa::test
{
namespace
{

using NodeTest = DocumentScene;

TEST_F(NodeTest, NamesAreExact)
{
    const Node root = Loaded("<Name/>").Root();

    EXPECT_TRUE(root.IsNamed(L"Name"));
    EXPECT_FALSE(root.IsNamed(L"name"));
    EXPECT_FALSE(root.IsNamed(L"Nam"));
}

TEST_F(NodeTest, TheTextIsOfAllThatStandsInside)
{
    const Node root = Loaded("<r>one<b>two</b><!--no--><![CDATA[<three>]]></r>").Root();

    EXPECT_EQ(root.Text().view(), L"onetwo<three>");
}

TEST_F(NodeTest, SettingTheTextReplacesAllThatStandsInside)
{
    const Document document = Loaded("<r>one<b>two</b><!--no--></r>");

    ASSERT_TRUE(document.Root().SetText(L"<\u00E4 & \"\U0001F600\">"));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r>&lt;\xC3\xA4 &amp; \"\xF0\x9F\x98\x80\"&gt;</r>"));
}

TEST_F(NodeTest, AChildThatIsHeldOutlivesTheTextThatReplacesIt)
{
    for (int i = 0; i < 100; ++i)
    {
        const Document document = Loaded("<r>one<b>two<c>three</c></b></r>");
        const Node b = document.Root().FirstChild().NextSibling();
        const Node c = b.FirstChild().NextSibling();

        ASSERT_TRUE(document.Root().SetText(L"text"));

        EXPECT_EQ(b.Text().view(), L"twothree");
        EXPECT_EQ(c.Text().view(), L"three");
        EXPECT_FALSE(b.Parent());
    }
}

TEST_F(NodeTest, ATextThatXmlCannotHoldIsRefused)
{
    const Document document = Loaded("<r>one</r>");

    EXPECT_FALSE(document.Root().SetText(L"a\x01"));
    EXPECT_FALSE(document.Root().SetText(L"\uFFFF"));

    EXPECT_EQ(document.Root().Text().view(), L"one");
}

TEST_F(NodeTest, ChildrenAreOfAllTypesInTheirOrder)
{
    const Document document = Loaded("<r><a/>text<!--c--><?p i?><b/></r>");

    std::string names;
    for (const Node& child : document.Root().Children())
    {
        names += ToUtf8(child.Name().view()) + (child.IsElement() ? "! " : " ");
    }

    EXPECT_EQ(names, "a! #text #comment p b! ");
}

TEST_F(NodeTest, ANodeWithoutChildrenHasAnEmptyRange)
{
    const Node root = Loaded("<r/>").Root();

    for (const Node& child : root.Children())
    {
        ADD_FAILURE() << "a child named " << ToUtf8(child.Name().view());
    }
    EXPECT_FALSE(root.FirstChild());
    EXPECT_FALSE(root.NextSibling());
}

TEST_F(NodeTest, AttributesAreFoundByTheirExactName)
{
    const Node root = Loaded("<r Name='1' o:Name='2' xmlns:o='urn:o' empty=''/>").Root();

    EXPECT_EQ(root.Attribute(L"Name").Text().view(), L"1");
    EXPECT_EQ(root.Attribute(L"empty").Text().view(), L"");
    EXPECT_FALSE(root.Attribute(L"name"));
    EXPECT_FALSE(root.Attribute(L"other"));
}

TEST_F(NodeTest, WhatHasNoAttributesHasNoneOfThatName)
{
    const Node text = Loaded("<r>text</r>").Root().FirstChild();

    EXPECT_FALSE(text.Attribute(L"Name"));
}

TEST_F(NodeTest, AttributesAreSetAndReplaced)
{
    const Document document = Loaded("<r a='1'/>");

    ASSERT_TRUE(document.Root().SetAttribute(L"a", L"<2>"));
    ASSERT_TRUE(document.Root().SetAttribute(L"b", L"\"&"));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r a='&lt;2&gt;' b='\"&amp;'/>"));
}

TEST_F(NodeTest, OnlyElementsTakeAttributes)
{
    const Node text = Loaded("<r>text</r>").Root().FirstChild();

    EXPECT_FALSE(text.SetAttribute(L"a", L"1"));
}

TEST_F(NodeTest, AnAppendedNodeIsTheLastChild)
{
    const Document document = Loaded("<r><a/>text</r>");

    ASSERT_TRUE(document.Root().Append(document.CreateElement(L"z", L"")));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r><a/>text<z/></r>"));
}

TEST_F(NodeTest, AppendingANodeThatStandsElsewhereMovesIt)
{
    const Document document = Loaded("<r><a><b/></a></r>");
    const Node root = document.Root();

    ASSERT_TRUE(root.Append(root.FirstChild().FirstChild()));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r><a/><b/></r>"));
}

TEST_F(NodeTest, ARemovedChildIsGone)
{
    const Document document = Loaded("<r><a/><b/></r>");
    const Node child = document.Root().FirstChild();

    ASSERT_TRUE(child.Parent().Remove(child));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r><b/></r>"));
}

TEST_F(NodeTest, OnlyChildrenAreRemoved)
{
    const Document document = Loaded("<r><a><b/></a></r>");
    const Node grandchild = document.Root().FirstChild().FirstChild();

    EXPECT_FALSE(document.Root().Remove(grandchild));
}

} // namespace
} // namespace norvepa::test
