#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProfileGetValue : public CatalogueScene
{
protected:
    // The value "DP" of the parameter "profile" holds this.
    [[nodiscard]] std::wstring FileOf(const XmlContent& content) const
    {
        return File(WithConstraints(
            XmlContent().ParamSection(L"profile", Values(XmlContent().ParamSection(L"DP", content)))));
    }

    [[nodiscard]] static TextAnswer Value(const std::wstring& file, const wchar_t* word,
                                          const wchar_t* parameter = L"profile", const wchar_t* value = L"DP")
    {
        return TextOf(
            [&](auto* out) { return NorvXMLProfileGetValue(file.c_str(), parameter, value, word, out); });
    }
};

TEST_F(ProfileGetValue, ReadsAnEntryOfTheValuesSection)
{
    const std::wstring file = FileOf(XmlContent().Text(L"a", L"1").Int(L"b", L"2").Bool(L"c", L"true"));

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
    EXPECT_EQ(Value(file, L"B"), Found(L"2"));
    EXPECT_EQ(Value(file, L"c"), Found(L"true"));
    EXPECT_EQ(Value(file, L"c", L"PROFILE", L"dp"), Found(L"true"));
}

TEST_F(ProfileGetValue, ReadsAnEmptyValue)
{
    EXPECT_EQ(Value(FileOf(XmlContent().Text(L"a", L"")), L"a"), Found(L""));
}

TEST_F(ProfileGetValue, DoesNotFindWhatIsNotThere)
{
    const std::wstring file = FileOf(XmlContent().Text(L"a", L"1"));

    EXPECT_EQ(Value(file, L"b"), NoText());
    EXPECT_EQ(Value(file, L"a", L"profile", L"FMS"), NoText());
    EXPECT_EQ(Value(file, L"a", L"other", L"DP"), NoText());
}

TEST_F(ProfileGetValue, GoesByTagNumberAndThenByTheFilesOrder)
{
    const std::wstring file = FileOf(
        XmlContent().Int(L"a", L"34").Bool(L"a", L"33").Text(L"a", L"30, first").Text(L"a", L"30, second"));

    EXPECT_EQ(Value(file, L"a"), Found(L"30, first"));
}

TEST_F(ProfileGetValue, TakesElementsOfAnyWordForEntries)
{
    const std::wstring file = FileOf(
        XmlContent().Element(L"Resource", XmlContent().Element(L"Name", L"a").Element(L"Value", L"1")));

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
}

TEST_F(ProfileGetValue, ReadsAValueThatStandsAheadOfItsName)
{
    const std::wstring file = FileOf(
        XmlContent().Element(L"Parameter", XmlContent().Element(L"Value", L"1").Element(L"Name", L"a")));

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
}

TEST_F(ProfileGetValue, LooksAtTheFirstNameAndTheFirstValueOnly)
{
    const std::wstring file = FileOf(XmlContent().Element(L"Parameter", XmlContent()
                                                                            .Element(L"Name", L"a")
                                                                            .Element(L"Name", L"b")
                                                                            .Element(L"Value", L"1")
                                                                            .Element(L"Value", L"2")));

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
    EXPECT_EQ(Value(file, L"b"), NoText());
}

TEST_F(ProfileGetValue, AMatchedNameWithoutValueGetsThatOfTheNextEntryWithoutName)
{
    const std::wstring file = FileOf(XmlContent()
                                         .Element(L"Parameter", XmlContent().Element(L"Name", L"a"))
                                         .Element(L"ParameterInt", XmlContent().Element(L"Value", L"1")));

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
}

TEST_F(ProfileGetValue, AnotherNameEndsTheMatch)
{
    const std::wstring file = FileOf(XmlContent()
                                         .Element(L"Parameter", XmlContent().Element(L"Name", L"a"))
                                         .Text(L"b", L"2")
                                         .Element(L"ParameterInt", XmlContent().Element(L"Value", L"1")));

    EXPECT_EQ(Value(file, L"a"), NoText());
    EXPECT_EQ(Value(file, L"b"), Found(L"2"));
}

TEST_F(ProfileGetValue, IsNoneWithoutAValueInTheFile)
{
    const std::wstring file =
        FileOf(XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"a")).Text(L"", L""));

    EXPECT_EQ(Value(file, L"a"), NoText());
}

TEST_F(ProfileGetValue, AnArgumentWithBackslashesIsMoreThanOneStepOfThePath)
{
    const std::wstring file = FileOf(XmlContent().Text(L"a", L"1"));

    EXPECT_EQ(Value(file, L"a", L"profile\\DP", L""), Found(L"1"));
    EXPECT_EQ(Value(file, L"a", L"", L"profile\\\\DP\\"), Found(L"1"));
    EXPECT_EQ(Value(file, L"a", L"profile\\DP\\x\\y", L"z"), NoText());
    EXPECT_EQ(Value(file, L"a", std::wstring(300, L'x').c_str()), NoText());
}

// A misspelt word misses its entry without a trace in the document, which other threads read.
TEST_F(ProfileGetValue, AMissLeavesTheDocumentAsItWas)
{
    const std::wstring file = FileOf(XmlContent().Text(L"a", L"1"));
    ASSERT_EQ(Value(file, L"b"), NoText());

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
}

} // namespace
} // namespace norvepa::test
