#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

// Entries that aren't a Name followed by a Value.
class GetValueEntry : public ReadScene
{
protected:
    // A file with the section "S", which holds this.
    [[nodiscard]] std::wstring Section(const XmlContent& content) const
    {
        return File(LogDeviceFile(XmlContent().Element(L"S", content)));
    }
};

TEST_F(GetValueEntry, AValueOfTwoTagsWithNothingBetweenIsTheEmptyText)
{
    const std::wstring file = Section(XmlContent().Text(L"a", L""));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L""));
}

TEST_F(GetValueEntry, AValueOfOneEmptyTagIsNoValue)
{
    const std::wstring file =
        Section(XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"a").EmptyTag(L"Value")));

    EXPECT_EQ(GetValue(file, L"S", L"a"), NotFound());
}

TEST_F(GetValueEntry, AnEntryWithoutValueGivesWayToTheNextOfItsName)
{
    const std::wstring file =
        Section(XmlContent()
                    .Element(L"Parameter", XmlContent().Element(L"Name", L"a"))
                    .Element(L"Parameter", XmlContent().Element(L"Name", L"a").EmptyTag(L"Value"))
                    .Int(L"a", L"3"));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"3"));
}

TEST_F(GetValueEntry, AnEntryWithoutNameIsPassedOver)
{
    const std::wstring file = Section(XmlContent()
                                          .Element(L"Parameter", XmlContent().Element(L"Value", L"0"))
                                          .Element(L"Parameter", XmlContent().EmptyTag(L"Value"))
                                          .Element(L"Parameter", XmlContent())
                                          .Text(L"a", L"1"));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"S", L""), NotFound());
}

TEST_F(GetValueEntry, ANameOfOneEmptyTagIsNoNameAndPassedOver)
{
    const std::wstring file =
        Section(XmlContent()
                    .Element(L"Parameter", XmlContent().EmptyTag(L"Name").Element(L"Value", L"0"))
                    .Text(L"a", L"1"));

    EXPECT_EQ(GetValue(file, L"S", L""), NotFound());
    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueEntry, AValueAheadOfTheNameIsNotSeen)
{
    const std::wstring file =
        Section(XmlContent()
                    .Element(L"Parameter", XmlContent().Element(L"Value", L"0").Element(L"Name", L"a"))
                    .Text(L"a", L"1"));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueEntry, OtherChildrenAroundNameAndValueArePassedOver)
{
    const std::wstring file = Section(XmlContent().Element(L"Parameter", XmlContent()
                                                                             .Element(L"Id", L"0")
                                                                             .Element(L"Name", L"a")
                                                                             .Element(L"Unit", L"Baud")
                                                                             .Element(L"Value", L"1")));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueEntry, NameAndValueMayStandDeeper)
{
    const std::wstring file = Section(XmlContent().Element(
        L"Parameter",
        XmlContent().Element(L"Inner", XmlContent().Element(L"Name", L"a").Element(L"Value", L"1"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueEntry, ElementsOfOtherNamesAreNoEntries)
{
    const std::wstring inner = L"not an entry";
    const std::wstring file =
        Section(XmlContent()
                    .Element(L"Resource", XmlContent().Element(L"Name", L"a").Element(L"Value", inner))
                    .Element(L"ParameterReal", XmlContent().Element(L"Name", L"a").Element(L"Value", inner)));

    EXPECT_EQ(GetValue(file, L"S", L"a"), NotFound());
}

TEST_F(GetValueEntry, OfATextWithACommentInItTheFirstPartIsTaken)
{
    const std::wstring file = Section(XmlContent().Element(
        L"Parameter",
        XmlContent()
            .Element(L"Name", XmlContent().Characters(L"a").Comment(L"and").Characters(L"b"))
            .Element(L"Value", XmlContent().Characters(L"1").Comment(L"and").Characters(L"2"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"S", L"ab"), NotFound());
}

TEST_F(GetValueEntry, CharacterDataSectionsAreNoText)
{
    const std::wstring file = Section(
        XmlContent()
            .Element(L"Parameter",
                     XmlContent().Element(L"Name", L"a").Element(L"Value", XmlContent().CData(L"1")))
            .Element(L"Parameter",
                     XmlContent().Element(L"Name", XmlContent().CData(L"b")).Element(L"Value", L"2")));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L""));
    EXPECT_EQ(GetValue(file, L"S", L"b"), NotFound());
    EXPECT_EQ(GetValue(file, L"S", L""), Found(L"2"));
}

TEST_F(GetValueEntry, EntitiesComeAsWhatTheyStandFor)
{
    const std::wstring file = Section(XmlContent().Text(L"a & b", L"<\"R&D\">"));

    EXPECT_EQ(GetValue(file, L"S", L"A & B"), Found(L"<\"R&D\">"));
}

TEST_F(GetValueEntry, CharacterReferencesComeAsWhatTheyStandFor)
{
    const std::wstring file =
        Section(XmlContent().Raw("<Parameter><Name>&#97;</Name><Value>&#x3A9; &#228;</Value></Parameter>"));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"Ω ä"));
}

TEST_F(GetValueEntry, AValueComesAsItStands)
{
    const std::wstring value = L"  Größe µΩ, Ελλάδα, 温度, 😀\t'  ";
    const std::wstring file = Section(XmlContent().Text(L"a", value));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(value));
}

TEST_F(GetValueEntry, AValueOfWhiteSpaceAloneIsTheEmptyText)
{
    const std::wstring file = Section(XmlContent().Text(L"a", L" \t "));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L""));
}

TEST_F(GetValueEntry, AValueMayBeLong)
{
    const std::wstring value(100'000, L'x');
    const std::wstring file = Section(XmlContent().Text(L"a", value));

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(value));
}

} // namespace
} // namespace norvepa::test
