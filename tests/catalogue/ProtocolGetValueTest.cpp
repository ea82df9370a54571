#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProtocolGetValue : public CatalogueScene
{
protected:
    [[nodiscard]] static TextAnswer Word(const std::wstring& file, const wchar_t* parameter,
                                         const wchar_t* word)
    {
        return TextOf([&](auto* out) { return NorvXMLProtocolGetValue(file.c_str(), parameter, word, out); });
    }
};

TEST_F(ProtocolGetValue, ReadsAWordOfTheParametersSection)
{
    const std::wstring file = File(WithConstraints(
        XmlContent()
            .ParamSection(L"hsa", XmlContent().Element(L"type", L"int").Element(L"min", L"15"))
            .ParamSection(L"baudrate", XmlContent().Element(L"type", L"int").Element(L"min", L"9600"))));

    EXPECT_EQ(Word(file, L"baudrate", L"min"), Found(L"9600"));
    EXPECT_EQ(Word(file, L"BaudRate", L"MIN"), Found(L"9600"));
    EXPECT_EQ(Word(file, L"hsa", L"min"), Found(L"15"));
}

TEST_F(ProtocolGetValue, FindsTheSectionAnywhereInTheFile)
{
    const std::wstring file = File(ProtocolFile(XmlContent().EmptyTag(L"Odd").Element(
        L"Elsewhere", XmlContent().Element(
                          L"Deep", XmlContent().ParamSection(L"hsa", XmlContent().Element(L"min", L"1"))))));

    EXPECT_EQ(Word(file, L"hsa", L"min"), Found(L"1"));
}

TEST_F(ProtocolGetValue, ReadsWordsOfNoVocabulary)
{
    const std::wstring file = File(
        WithConstraints(XmlContent().ParamSection(L"hsa", XmlContent().Element(L"Besonderheit", L"ja"))));

    EXPECT_EQ(Word(file, L"hsa", L"Besonderheit"), Found(L"ja"));
}

TEST_F(ProtocolGetValue, LooksNeitherIntoNorBehindTheValueCollection)
{
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"hsa", XmlContent()
                                              .Element(L"type", L"int")
                                              .Element(L"ValueCollection", XmlContent().Element(L"min", L"1"))
                                              .Element(L"max", L"126"))));

    EXPECT_EQ(Word(file, L"hsa", L"type"), Found(L"int"));
    EXPECT_EQ(Word(file, L"hsa", L"min"), NoText());
    EXPECT_EQ(Word(file, L"hsa", L"max"), NoText());
    EXPECT_EQ(Word(file, L"hsa", L"ValueCollection"), NoText());
}

TEST_F(ProtocolGetValue, EndsWithTheFirstSectionOfTheParameter)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .ParamSection(L"hsa", XmlContent().Element(L"type", L"int"))
                                 .ParamSection(L"hsa", XmlContent().Element(L"min", L"1"))));

    EXPECT_EQ(Word(file, L"hsa", L"min"), NoText());
}

TEST_F(ProtocolGetValue, EndsAtAnEmptyTagAndReadsAnEmptyElementOfTwo)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"hsa", XmlContent().Element(L"min", L"").EmptyTag(L"max").Element(L"type", L"int"))));

    EXPECT_EQ(Word(file, L"hsa", L"min"), Found(L""));
    EXPECT_EQ(Word(file, L"hsa", L"max"), NoText());
    EXPECT_EQ(Word(file, L"hsa", L"type"), NoText());
}

TEST_F(ProtocolGetValue, TakesASectionOfOneEmptyTagForNone)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .EmptyTag(L"ParamSection", {{L"Param", L"hsa"}})
                                 .ParamSection(L"hsa", XmlContent().Element(L"min", L"1"))));

    EXPECT_EQ(Word(file, L"hsa", L"min"), Found(L"1"));
}

TEST_F(ProtocolGetValue, FindsWordsOfANestedSectionAheadOfItsEnd)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"hsa",
        XmlContent().ParamSection(L"nested", XmlContent().Element(L"min", L"1")).Element(L"max", L"126"))));

    EXPECT_EQ(Word(file, L"hsa", L"min"), Found(L"1"));
    EXPECT_EQ(Word(file, L"hsa", L"max"), NoText()) << "the nested section's end is taken for its own";
}

TEST_F(ProtocolGetValue, DoesNotFindTheWordOfASectionThatIsNotThere)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .Element(L"ParamSection", XmlContent().Element(L"min", L"without Param"))
                                 .Element(L"hsa", XmlContent().Element(L"min", L"not a section"))));

    EXPECT_EQ(Word(file, L"hsa", L"min"), NoText());
}

TEST_F(ProtocolGetValue, LeavesTheOutputWhenTheFileEndsInTheWord)
{
    const std::wstring file = File("<Profile><ParamSection Param='hsa'><min></wrong>");

    EXPECT_EQ(Word(file, L"hsa", L"min"), NoText());
}

} // namespace
} // namespace norvepa::test
