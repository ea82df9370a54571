#include "support/XmlMeaning.h"
#include "xml/DocumentScene.h"

namespace norvepa::test
{
namespace
{

using DocumentTest = DocumentScene;

std::string Names(const std::vector<Node>& nodes)
{
    std::string names;
    for (const Node& node : nodes)
    {
        names += ToUtf8(node.Name().view()) + " ";
    }
    return names;
}

TEST_F(DocumentTest, AnEmptyDocumentHasNoRootAndNoElements)
{
    const Document document = Empty();

    EXPECT_FALSE(document.Root());
    EXPECT_TRUE(document.Elements().empty());
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

TEST_F(DocumentTest, ElementsOutliveTheDocument)
{
    std::vector<Node> elements = Loaded("<r><a>1</a></r>").Elements();

    EXPECT_EQ(elements.at(0).Text().view(), L"1");
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
