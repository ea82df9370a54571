#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

// The two that differ in nothing but the code for a missing length. They share their answers.
class EnumParamSection : public CatalogueScene
{
protected:
    // What both answer.
    [[nodiscard]] static PairAnswer Entry(const std::wstring& file, const wchar_t* parameter,
                                          std::uint32_t index)
    {
        const PairAnswer ofBoard = PairOf([&](const PairBuffers& pair) {
            return NorvXMLEnumParamSection(file.c_str(), parameter, index, pair);
        });
        const PairAnswer ofProtocol = PairOf([&](const PairBuffers& pair) {
            return NorvXMLEnumProtocolParameter(file.c_str(), parameter, index, pair);
        });
        EXPECT_EQ(ofBoard, ofProtocol);
        return ofBoard;
    }
};

TEST_F(EnumParamSection, GoesByTagNumberThroughTheWordsOfTheSection)
{
    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"hsa", XmlContent()
                                                                   .Element(L"type", L"int")
                                                                   .Element(L"MIN", L"15")
                                                                   .Element(L"option", L"second to none")
                                                                   .Element(L"Default", L"126")
                                                                   .Element(L"option", L"")
                                                                   .Element(L"max", L"126"))));

    EXPECT_EQ(Entry(file, L"hsa", 0), Found(L"default", L"126"));
    EXPECT_EQ(Entry(file, L"HSA", 1), Found(L"max", L"126"));
    EXPECT_EQ(Entry(file, L"hsa", 2), Found(L"min", L"15"));
    EXPECT_EQ(Entry(file, L"hsa", 3), Found(L"option", L"second to none"));
    EXPECT_EQ(Entry(file, L"hsa", 4), Found(L"option", L""));
    EXPECT_EQ(Entry(file, L"hsa", 5), Found(L"type", L"int"));
    EXPECT_EQ(Entry(file, L"hsa", 6), NoPair());
    EXPECT_EQ(Entry(file, L"hsa", 0xFFFFFFFF), NoPair());
}

TEST_F(EnumParamSection, LeavesOutTheValueCollectionAndWordsOfNoVocabulary)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"p", XmlContent().Element(L"min", L"1").ValueCollection({L"1", L"2"}).EmptyTag(L"base"))));

    EXPECT_EQ(Entry(file, L"p", 0), Found(L"min", L"1"));
    EXPECT_EQ(Entry(file, L"p", 1), NoPair());
}

TEST_F(EnumParamSection, KeepsSemicolonsInTheValue)
{
    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().Element(L"map", L"b;c;"))));

    EXPECT_EQ(Entry(file, L"p", 0), Found(L"map", L"b;c;"));
    EXPECT_EQ(Entry(file, L"p", 0), Found(L"map", L"b;c;"));
}

TEST_F(EnumParamSection, FindsTheNearestSectionAnywhere)
{
    const std::wstring file = File(BoardFile(
        XmlContent()
            .Element(L"Bindings",
                     XmlContent().Element(L"Constraints", XmlContent().ParamSection(
                                                              L"p", XmlContent().Element(L"min", L"deep"))))
            .Element(L"BoardAttributes",
                     XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"near")))));

    EXPECT_EQ(Entry(file, L"p", 0), Found(L"min", L"near"));
}

TEST_F(EnumParamSection, IsNotFoundWithoutASectionOrWords)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .ParamSection(L"empty", XmlContent())
                                 .ParamSection(L"values", XmlContent().ValueCollection({L"1"}))
                                 .Element(L"ParamSection", XmlContent().Element(L"min", L"without Param"))));

    for (const wchar_t* parameter : {L"empty", L"values", L"other", L""})
    {
        EXPECT_EQ(Entry(file, parameter, 0), NoPair(PGSP_ERR_PARAM_NOT_FOUND)) << ToUtf8(parameter);
        EXPECT_EQ(Entry(file, parameter, 1), NoPair(PGSP_ERR_PARAM_NOT_FOUND)) << ToUtf8(parameter);
    }
}

TEST_F(EnumParamSection, KeepsTheAnswersOfSeveralParametersApart)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .ParamSection(L"p", XmlContent().Element(L"min", L"of p"))
                                 .ParamSection(L"q", XmlContent().Element(L"min", L"of q"))));

    for (int round = 0; round < 2; ++round)
    {
        EXPECT_EQ(Entry(file, L"p", 0), Found(L"min", L"of p"));
        EXPECT_EQ(Entry(file, L"q", 0), Found(L"min", L"of q"));
    }
}

TEST_F(EnumParamSection, AParametersAnswersAreNoneOfItsValueCollection)
{
    const std::wstring file = File(BoardFile(XmlContent().Element(
        L"NotSupported", XmlContent()
                             .ValueCollection({L"baudrate"})
                             .ParamSection(L"NotSupported", XmlContent().Element(L"min", L"1")))));
    std::wstring item;

    ASSERT_EQ(NorvXMLEnumValueCollectionRaw(file.c_str(), L"NotSupported", 0, &item), PGSP_OK);

    EXPECT_EQ(Entry(file, L"NotSupported", 0), Found(L"min", L"1"));
    EXPECT_EQ(item, L"baudrate");
}

} // namespace
} // namespace norvepa::test
