#include "support/WatchedEngine.h"
#include "support/XmlMeaning.h"
#include "xml/DocumentScene.h"

namespace norvepa::test
{
namespace
{

using DocumentTest = DocumentScene;

std::string Names(const ElementRange& elements)
{
    std::string names;
    for (const Node& element : elements)
    {
        names += ToUtf8(element.Name().view()) + " ";
    }
    return names;
}

TEST_F(DocumentTest, AnEmptyDocumentHasNoRootAndNoElements)
{
    const Document document = Empty();

    EXPECT_FALSE(document.Root());
    EXPECT_EQ(Names(document.Elements()), "");
}

TEST_F(DocumentTest, TheElementsAreAllBelowTheRootInDocumentOrder)
{
    const Document document = Loaded("<r><a><b/>text<c><d/></c></a><!--e--><a/></r>");

    EXPECT_EQ(Names(document.Elements()), "a b c d a ");
}

TEST_F(DocumentTest, ElementsKeepTheirPrefixes)
{
    const Document document = Loaded("<r xmlns:o='urn:o'><o:a/></r>");

    EXPECT_EQ(Names(document.Elements()), "o:a ");
}

TEST_F(DocumentTest, WhatStandsBesideTheRootIsNoneOfTheElements)
{
    const Document document = Loaded("<?p?><!--c--><r>text<!--c--></r><!--d--><?q?>");

    EXPECT_EQ(Names(document.Elements()), "");
}

TEST_F(DocumentTest, ElementsAreWalkedAnewEachTime)
{
    const Document document = Loaded("<r><a/><b><c/></b></r>");
    const ElementRange elements = document.Elements();

    EXPECT_EQ(Names(elements), "a b c ");
    EXPECT_EQ(Names(elements), "a b c ");
}

TEST_F(DocumentTest, AWalkComesBackFromAnyDepth)
{
    constexpr int depth = 200;
    std::string bytes = "<end/>";
    std::string names = "end ";
    for (int i = 0; i < depth; ++i)
    {
        bytes.insert(0, "<down>").append("</down><up/>");
        names.insert(0, "down ").append("up ");
    }
    const Document document = Loaded("<r>" + bytes + "</r>");

    EXPECT_EQ(Names(document.Elements()), names);
}

TEST_F(DocumentTest, AWalkHoldsAFewObjectsHoweverManyElementsThereAre)
{
    constexpr int pairs = 100'000;
    std::string bytes = "<r>";
    for (int i = 0; i < pairs; ++i)
    {
        bytes += "<o" + std::to_string(i) + "><i/></o" + std::to_string(i) + ">";
    }
    const WatchedEngine engine;
    const Document document = Loaded(bytes + "</r>");

    int walked = 0;
    for (const Node& element : document.Elements())
    {
        const bool isOuter = walked % 2 == 0;
        ASSERT_EQ(element.Name().view(), isOuter ? L"o" + std::to_wstring(walked / 2) : L"i");
        ++walked;
    }

    EXPECT_EQ(walked, 2 * pairs);
    EXPECT_LE(engine.mostObjectsHeld(), 10U);
}

TEST_F(DocumentTest, AWalkOutlivesTheDocument)
{
    const ElementRange elements = Loaded("<r><a>1</a></r>").Elements();

    EXPECT_EQ((*elements.begin()).Text().view(), L"1");
}

TEST_F(DocumentTest, ADocumentIsBuiltFromItsParts)
{
    const Document document = Empty();
    const Node root = document.CreateElement(L"r", L"urn:r");

    ASSERT_TRUE(document.Append(document.CreateInstruction(L"xml", L"version='1.0' encoding='UTF-8'")));
    ASSERT_TRUE(document.Append(root));
    ASSERT_TRUE(root.Append(document.CreateElement(L"a", L"urn:r")));
    ASSERT_TRUE(root.Append(document.CreateElement(L"b", L"urn:b")));
    ASSERT_TRUE(document.Append(document.CreateComment(L" end ")));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r xmlns='urn:r'><a/><b xmlns='urn:b'/></r><!-- end -->"));
}

TEST_F(DocumentTest, WithAnEmptyNamespaceAnElementHasNone)
{
    const Document document = Loaded("<r/>");

    ASSERT_TRUE(document.Root().Append(document.CreateElement(L"a", L"")));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r><a/></r>"));
}

TEST_F(DocumentTest, AnElementWithAPrefixIsInTheNamespaceToo)
{
    const Document document = Loaded("<r/>");

    ASSERT_TRUE(document.Root().Append(document.CreateElement(L"p:a", L"urn:p")));

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r><p:a xmlns:p='urn:p'/></r>"));
}

TEST_F(DocumentTest, AWrongNameMakesNoElement)
{
    const Document document = Empty();

    EXPECT_FALSE(document.CreateElement(L"", L"urn:r"));
    EXPECT_FALSE(document.CreateElement(L"a b", L"urn:r"));
    EXPECT_FALSE(document.CreateElement(L"\u00D7", L"urn:r"));
}

TEST_F(DocumentTest, SavingWhereThereIsNoFolderFails)
{
    const Document document = Loaded("<r/>");

    EXPECT_FALSE(document.Save(folder() / L"nowhere\\file.xml"));
}

TEST_F(DocumentTest, SavingReplacesALongerFile)
{
    const Document document = Loaded("<r/>");
    WriteBytes(file(), "<r>" + std::string(10'000, 'x') + "</r>");

    EXPECT_EQ(SavedMeaning(document), MeaningOf("<r/>"));
}

TEST_F(DocumentTest, ADocumentCanBeCreatedAnew)
{
    Document document = Loaded("<r/>");

    ASSERT_EQ(document.Create(), S_OK);

    EXPECT_FALSE(document.Root());
}

} // namespace
} // namespace norvepa::test
