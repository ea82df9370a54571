#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ElementGetAttribute : public CatalogueScene
{
protected:
    [[nodiscard]] static TextAnswer Attribute(const std::wstring& file, const wchar_t* attribute)
    {
        return TextOf([&](auto* out) { return NorvXMLElementGetAttribute(file.c_str(), attribute, out); });
    }

    // The output is emptied ahead of the search.
    [[nodiscard]] static TextAnswer NotFound() { return {PGSP_ERR_PARAM_NOT_FOUND, L""}; }
};

TEST_F(ElementGetAttribute, ReadsAnAttributeOfTheRoot)
{
    const std::wstring file = File(BoardFile(XmlContent(), L"*AFK110", L"MPI"));

    EXPECT_EQ(Attribute(file, L"DeviceID"), Found(L"*AFK110"));
    EXPECT_EQ(Attribute(file, L"CP_TYPE"), Found(L"MPI"));
    EXPECT_EQ(Attribute(file, L"deviceid"), Found(L"*AFK110"));
}

TEST_F(ElementGetAttribute, TakesWordsOfNoVocabulary)
{
    const std::wstring file = File(XmlFile(L"Anything", {{L"Größe", L"<&\">"}, {L"leer", L""}}, {}));

    EXPECT_EQ(Attribute(file, L"GRÖSSE"), NotFound());
    EXPECT_EQ(Attribute(file, L"GRÖßE"), Found(L"<&\">"));
    EXPECT_EQ(Attribute(file, L"leer"), Found(L""));
}

TEST_F(ElementGetAttribute, KnowsThemByTheirLocalNames)
{
    const std::wstring file = File("<a xmlns:x='urn:x' x:CP_TYPE='MPI'/>");

    EXPECT_EQ(Attribute(file, L"CP_TYPE"), Found(L"MPI"));
    EXPECT_EQ(Attribute(file, L"x:CP_TYPE"), NotFound());
}

TEST_F(ElementGetAttribute, LooksAtTheRootOnly)
{
    const std::wstring file =
        File(XmlFile(L"Device", {{L"A", L"1"}}, XmlContent().Element(L"Device", {{L"CP_TYPE", L"MPI"}}, {})));

    EXPECT_EQ(Attribute(file, L"CP_TYPE"), NotFound());
}

TEST_F(ElementGetAttribute, LooksAtARootThatIsOneEmptyTag)
{
    const std::wstring file = File("<!-- ahead --><?pi of it?><Device CP_TYPE='MPI'/>");

    EXPECT_EQ(Attribute(file, L"CP_TYPE"), Found(L"MPI"));
}

TEST_F(ElementGetAttribute, EmptiesItsOutputAlsoWithoutAFile)
{
    EXPECT_EQ(Attribute(folder() / L"missing", L"CP_TYPE"), (TextAnswer{PGSP_ERR_CANT_LOAD_XML_FILE, L""}));
}

TEST_F(ElementGetAttribute, FindsNothingInAFileWithoutARoot)
{
    EXPECT_EQ(Attribute(File("", L"empty"), L"CP_TYPE"), NotFound());
    EXPECT_EQ(Attribute(File("no XML", L"text"), L"CP_TYPE"), NotFound());
    EXPECT_EQ(Attribute(File("<!DOCTYPE a [<!ELEMENT a ANY>]><a CP_TYPE='MPI'/>", L"dtd"), L"CP_TYPE"),
              NotFound());
}

} // namespace
} // namespace norvepa::test
