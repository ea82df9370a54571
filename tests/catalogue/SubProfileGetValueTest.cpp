#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class SubProfileGetValue : public CatalogueScene
{
protected:
    [[nodiscard]] static TextAnswer Value(const std::wstring& file, const wchar_t* name,
                                          const wchar_t* subValue = L"fast", const wchar_t* value = L"DP")
    {
        return TextOf([&](auto* out) {
            return NorvXMLSubProfileGetValue(file.c_str(), L"profile", value, L"speed", subValue, name, out);
        });
    }

    // A value's section with the sub-parameter "speed" and this for its values.
    [[nodiscard]] static XmlContent Speeds(const XmlContent& values)
    {
        return XmlContent().ParamSection(L"speed", Values(values));
    }

    [[nodiscard]] static XmlContent Entry(std::wstring_view value) { return XmlContent().Text(L"a", value); }
};

TEST_F(SubProfileGetValue, ReadsAnEntryOfTheSubValuesSection)
{
    const XmlContent speeds = Speeds(
        XmlContent()
            .ParamSection(L"slow", Entry(L"1"))
            .ParamSection(L"fast", XmlContent().Text(L"a", L"2").Int(L"b", L"3").Bool(L"c", L"false")));
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"profile", Values(XmlContent().ParamSection(L"DP", speeds)))));

    EXPECT_EQ(Value(file, L"a"), Found(L"2"));
    EXPECT_EQ(Value(file, L"B"), Found(L"3"));
    EXPECT_EQ(Value(file, L"c", L"FAST", L"dp"), Found(L"false"));
    EXPECT_EQ(Value(file, L"a", L"slow"), Found(L"1"));
    EXPECT_EQ(Value(file, L"d"), NoText());
    EXPECT_EQ(Value(file, L"a", L"other"), NoText());
    EXPECT_EQ(Value(file, L"a", L"fast", L"FMS"), NoText());
}

TEST_F(SubProfileGetValue, TheSubParameterMustBeTheNextSectionBehindTheValue)
{
    const XmlContent behindAnother = XmlContent()
                                         .ParamSection(L"other", XmlContent())
                                         .Raw(Speeds(XmlContent().ParamSection(L"fast", Entry(L"1"))).utf8());
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"profile", Values(XmlContent().ParamSection(L"DP", behindAnother)))));

    EXPECT_EQ(Value(file, L"a"), NoText());
}

TEST_F(SubProfileGetValue, TheSearchForTheValueGoesOnBehindASectionOfAnotherSubParameter)
{
    const XmlContent values =
        XmlContent()
            .ParamSection(L"DP", XmlContent().ParamSection(L"other", XmlContent()))
            .ParamSection(L"DP", Speeds(XmlContent().ParamSection(L"fast", Entry(L"1"))));
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(L"profile", Values(values))));

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
}

// Two values follow on each other: the second is taken for the first one's sub-parameter, and so isn't looked
// at as a value.
TEST_F(SubProfileGetValue, TheSectionThatIsNoSubParameterIsNoValueEither)
{
    const XmlContent values =
        XmlContent()
            .ParamSection(L"DP", XmlContent())
            .ParamSection(L"DP", Speeds(XmlContent().ParamSection(L"fast", Entry(L"1"))));
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(L"profile", Values(values))));

    EXPECT_EQ(Value(file, L"a"), NoText());
}

TEST_F(SubProfileGetValue, TheWalkDoesNotNoticeWhenItLeavesASection)
{
    const XmlContent constraints =
        XmlContent()
            .ParamSection(L"profile", XmlContent())
            .ParamSection(L"DP", XmlContent())
            .ParamSection(L"speed", XmlContent())
            .ParamSection(L"other", XmlContent())
            .Element(L"Elsewhere", XmlContent().ParamSection(L"fast", Entry(L"1")));
    const std::wstring file = File(WithConstraints(constraints));

    EXPECT_EQ(Value(file, L"a"), Found(L"1"));
}

TEST_F(SubProfileGetValue, AnEmptyTagOnTheWaySendsTheSearchBackToTheParameter)
{
    const XmlContent interrupted =
        XmlContent()
            .ParamSection(L"profile", XmlContent().EmptyTag(L"odd"))
            .ParamSection(L"DP", Speeds(XmlContent().ParamSection(L"fast", Entry(L"not this"))));
    const XmlContent whole = XmlContent().ParamSection(
        L"profile",
        Values(XmlContent().ParamSection(L"DP", Speeds(XmlContent().ParamSection(L"fast", Entry(L"1"))))));

    const std::wstring once = File(WithConstraints(interrupted), L"once");
    const std::wstring twice =
        File(ProtocolFile(XmlContent().Element(L"Constraints", interrupted).Element(L"Constraints", whole)),
             L"twice");

    EXPECT_EQ(Value(once, L"a"), NoText());
    EXPECT_EQ(Value(twice, L"a"), Found(L"1"));
}

TEST_F(SubProfileGetValue, TheEndOfTheSectionSendsTheSearchBackToTheParameter)
{
    const auto constraints = [](const XmlContent& fast) {
        return XmlContent().ParamSection(
            L"profile",
            Values(XmlContent().ParamSection(L"DP", Speeds(XmlContent().ParamSection(L"fast", fast)))));
    };
    const std::wstring file =
        File(ProtocolFile(XmlContent()
                              .Element(L"Constraints", constraints(XmlContent().Text(L"b", L"1")))
                              .Element(L"Constraints", constraints(XmlContent().Text(L"a", L"2")))));

    EXPECT_EQ(Value(file, L"a"), Found(L"2"));
    EXPECT_EQ(Value(file, L"b"), Found(L"1"));
}

TEST_F(SubProfileGetValue, AnEntryWithoutValueIsPassedOverForTheNextOfItsName)
{
    const XmlContent fast =
        XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"a")).Int(L"a", L"2");
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"profile",
        Values(XmlContent().ParamSection(L"DP", Speeds(XmlContent().ParamSection(L"fast", fast)))))));

    EXPECT_EQ(Value(file, L"a"), Found(L"2"));
}

} // namespace
} // namespace norvepa::test
