#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

// Entries and sub-parameters of a value's section, counted among all of its children.
class EnumProfile : public CatalogueScene
{
protected:
    // The value "v" of the parameter "p" holds this.
    [[nodiscard]] std::wstring FileOf(const XmlContent& content) const
    {
        return File(WithConstraints(Section(XmlContent().ParamSection(L"v", content))));
    }

    [[nodiscard]] static XmlContent Section(const XmlContent& values)
    {
        return XmlContent().ParamSection(L"p", Values(values));
    }

    [[nodiscard]] static PairAnswer Entry(const std::wstring& file, std::uint32_t index)
    {
        PairAnswer answer = NoPair();
        answer.result = NorvXMLEnumProfileValue(file.c_str(), L"P", L"V", index, &answer.name, &answer.value);
        return answer;
    }

    [[nodiscard]] static TextAnswer SubParameter(const std::wstring& file, std::uint32_t index)
    {
        return TextOf([&](auto* out) { return NorvXMLEnumSubProfile(file.c_str(), L"P", L"V", index, out); });
    }
};

TEST_F(EnumProfile, DeliversEntriesOfAllThreeElements)
{
    const std::wstring file = FileOf(XmlContent().Text(L"a", L"1").Int(L"b", L"2").Bool(L"c", L"true"));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L"1"));
    EXPECT_EQ(Entry(file, 1), Found(L"b", L"2"));
    EXPECT_EQ(Entry(file, 2), Found(L"c", L"true"));
    EXPECT_EQ(Entry(file, 3), NoPair());
    EXPECT_EQ(Entry(file, 0xFFFFFFFF), NoPair());
}

TEST_F(EnumProfile, CountsChildrenOfEveryKindButBlanks)
{
    const std::wstring file = FileOf(XmlContent()
                                         .Element(L"ParamDesc", L"0")
                                         .Text(L"a", L"1")
                                         .Raw("\r\n    ")
                                         .Comment(L"2")
                                         .ParamSection(L"sp", XmlContent())
                                         .Text(L"b", L"4"));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L"1")) << "the first at or behind the index";
    EXPECT_EQ(Entry(file, 1), Found(L"a", L"1"));
    EXPECT_EQ(Entry(file, 2), Found(L"b", L"4"));
    EXPECT_EQ(Entry(file, 3), Found(L"b", L"4"));
    EXPECT_EQ(Entry(file, 4), Found(L"b", L"4"));
    EXPECT_EQ(Entry(file, 5), NoPair());
}

TEST_F(EnumProfile, DeliversSubParametersLikewise)
{
    const std::wstring file = FileOf(XmlContent()
                                         .Text(L"a", L"0")
                                         .ParamSection(L"sp", XmlContent())
                                         .Comment(L"2")
                                         .ParamSection(L"Größe", XmlContent()));

    EXPECT_EQ(SubParameter(file, 0), Found(L"sp"));
    EXPECT_EQ(SubParameter(file, 1), Found(L"sp"));
    EXPECT_EQ(SubParameter(file, 2), Found(L"Größe"));
    EXPECT_EQ(SubParameter(file, 3), Found(L"Größe"));
    EXPECT_EQ(SubParameter(file, 4), NoText(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(EnumProfile, CountsAnewInEachSectionThatMatches)
{
    const XmlContent values = XmlContent()
                                  .ParamSection(L"v", XmlContent().Text(L"a", L"1"))
                                  .ParamSection(L"w", XmlContent().Text(L"no", L"match"))
                                  .ParamSection(L"v", XmlContent().Text(L"b", L"2").Text(L"c", L"3"));
    const std::wstring file = File(WithConstraints(Section(values).Raw(
        Section(
            XmlContent().ParamSection(L"v", XmlContent().Text(L"d", L"4").Text(L"e", L"5").Text(L"f", L"6")))
            .utf8())));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L"1"));
    EXPECT_EQ(Entry(file, 1), Found(L"c", L"3"));
    EXPECT_EQ(Entry(file, 2), Found(L"f", L"6"));
    EXPECT_EQ(Entry(file, 3), NoPair());
}

TEST_F(EnumProfile, FindsTheParametersSectionAnywhereInTheFile)
{
    const std::wstring file =
        File(XmlFile(L"Other", {},
                     XmlContent().Element(
                         L"Deep", Section(XmlContent().ParamSection(L"v", XmlContent().Text(L"a", L"1"))))));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L"1"));
}

TEST_F(EnumProfile, IsNotTheRootItself)
{
    const std::wstring file =
        File(XmlFile(L"ParamSection", {{L"Param", L"p"}},
                     Values(XmlContent().ParamSection(L"v", XmlContent().Text(L"a", L"1")))));

    EXPECT_EQ(Entry(file, 0), NoPair());
}

TEST_F(EnumProfile, TakesTheValuesSectionFromAChildOfAChildOnly)
{
    const std::wstring file = File(WithConstraints(
        XmlContent()
            .ParamSection(L"p", XmlContent().ParamSection(L"v", XmlContent().Text(L"a", L"1")))
            .ParamSection(L"p", XmlContent().Element(L"option", Values(XmlContent().ParamSection(
                                                                    L"v", XmlContent().Text(L"a", L"2")))))));

    EXPECT_EQ(Entry(file, 0), NoPair());
}

TEST_F(EnumProfile, WhatAnEntryLacksIsEmpty)
{
    const std::wstring file = FileOf(XmlContent()
                                         .Element(L"Parameter", XmlContent().Element(L"Name", L"a"))
                                         .Element(L"Parameter", XmlContent().Element(L"Value", L"1")));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L""));
    EXPECT_EQ(Entry(file, 1), Found(L"", L"1"));
}

TEST_F(EnumProfile, ASubParameterWithoutParamIsEmpty)
{
    const std::wstring file = FileOf(XmlContent().Element(L"ParamSection", L"nameless"));

    EXPECT_EQ(SubParameter(file, 0), Found(L""));
}

TEST_F(EnumProfile, DoesNotFindAnotherParameterOrValue)
{
    const std::wstring file = File(WithConstraints(
        XmlContent()
            .ParamSection(L"q", Values(XmlContent().ParamSection(L"v", XmlContent().Text(L"a", L"1"))))
            .ParamSection(L"p", Values(XmlContent().ParamSection(L"w", XmlContent().Text(L"a", L"1"))))));

    EXPECT_EQ(Entry(file, 0), NoPair());
    EXPECT_EQ(SubParameter(file, 0), NoText(PGSP_ERR_NO_MORE_ITEMS));
}

} // namespace
} // namespace norvepa::test
