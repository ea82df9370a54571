#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProtocolGetEnumValue : public CatalogueScene
{
protected:
    ProtocolGetEnumValue() { WriteProtocol(L"X", BusProtocol()); }

    [[nodiscard]] std::int32_t Ask(const Question& asked, OutputBuffer& name, OutputBuffer& value) const
    {
        return library.PGSP_ProtocolGetEnumValueBL(L"X", asked.parameter, asked.value, asked.subParameter,
                                                   asked.subValue, 0, name.data(), &name.length, value.data(),
                                                   &value.length);
    }

    const std::vector<Question> questions{
        {}, {L"busparam"}, {L"busparam", L"3"}, {L"busparam", L"3", L"baudrate", L"9600"}};
};

TEST_F(ProtocolGetEnumValue, GivesAllParametersWithTheirDefaultsWithoutAParameter)
{
    EXPECT_EQ(ProtocolPair(L"X", {}, 0), L"busparam=1");
    EXPECT_EQ(ProtocolPair(L"X", {}, 1), L"baudrate=187500");
    EXPECT_EQ(ProtocolPair(L"X", {}, 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(ProtocolPair(L"X", {L""}, 0), L"busparam=1");
}

TEST_F(ProtocolGetEnumValue, LooksAtNothingElseWithoutAParameter)
{
    EXPECT_EQ(ProtocolPair(L"X", {nullptr, L"3", L"baudrate", L"9600"}, 1), L"baudrate=187500");
    EXPECT_EQ(ProtocolPair(L"X", {L"", L"gone", L"gone", L"gone"}, 1), L"baudrate=187500");
}

TEST_F(ProtocolGetEnumValue, GivesTheWordsOfAParameterWithoutAProfile)
{
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam"}, 0), L"default=1");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam"}, 1), L"type=int");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam"}, 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(ProtocolPair(L"X", {L"BUSPARAM", L""}, 1), L"type=int");
}

TEST_F(ProtocolGetEnumValue, LooksAtNoSubProfileWithoutAProfile)
{
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", nullptr, L"baudrate", L"9600"}, 0), L"default=1");
}

TEST_F(ProtocolGetEnumValue, GivesTheValuesOfAProfile)
{
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3"}, 0), L"slot=103");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3"}, 1), L"(default)=of the profile");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3"}, 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(ProtocolGetEnumValue, GivesTheValuesOfTheProfileWhenOneOfTheTwoForASubProfileIsMissing)
{
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3", L"baudrate", nullptr}, 0), L"slot=103");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3", L"baudrate", L""}, 0), L"slot=103");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3", nullptr, L"9600"}, 0), L"slot=103");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3", L"", L"9600"}, 0), L"slot=103");
}

TEST_F(ProtocolGetEnumValue, GivesTheValuesOfASubProfile)
{
    const Question first{L"busparam", L"3", L"baudrate", L"9600"};
    EXPECT_EQ(ProtocolPair(L"X", first, 0), L"(default)=of the baud rate");
    EXPECT_EQ(ProtocolPair(L"X", first, 1), L"slot=9");
    EXPECT_EQ(ProtocolPair(L"X", first, 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3", L"baudrate", L"19200"}, 0), L"slot=19");
}

TEST_F(ProtocolGetEnumValue, KnowsFourProfilesByTheirWordInAnyCase)
{
    const std::vector<std::pair<const wchar_t*, std::wstring>> profiles{
        {L"DP", L"100"}, {L"Std", L"101"}, {L"Uni", L"102"}, {L"User", L"103"},
        {L"dp", L"100"}, {L"STD", L"101"}, {L"uNI", L"102"}, {L"user", L"103"}};
    for (const auto& [word, slot] : profiles)
    {
        EXPECT_EQ(ProtocolPair(L"X", {L"busparam", word}, 0), L"slot=" + slot);
    }
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"User", L"baudrate", L"19200"}, 0), L"slot=19");
}

TEST_F(ProtocolGetEnumValue, KnowsNoWordButThose)
{
    for (const wchar_t* const word : {L"DP ", L" Std", L"Users", L"Un", L"4"})
    {
        EXPECT_EQ(ProtocolPair(L"X", {L"busparam", word}, 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
    }
}

TEST_F(ProtocolGetEnumValue, TakesTheWordOfAProfileForItsNumberUnderAnyParameter)
{
    const XmlContent values = XmlContent()
                                  .ParamSection(L"Std", XmlContent().Text(L"slot", L"by the word"))
                                  .ParamSection(L"1", XmlContent().Text(L"slot", L"by the number"));
    const XmlContent mode = XmlContent().Element(L"ValueCollection", values);
    WriteProtocol(L"Y", XmlContent().Element(L"Constraints", XmlContent().ParamSection(L"mode", mode)));

    EXPECT_EQ(ProtocolPair(L"Y", {L"mode", L"Std"}, 0), L"slot=by the number");
}

TEST_F(ProtocolGetEnumValue, TakesTheWordOfAProfileAsItStandsForAParameterOrASubProfile)
{
    EXPECT_EQ(ProtocolPair(L"X", {L"Std"}, 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3", L"baudrate", L"User"}, 0),
              Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(ProtocolGetEnumValue, TellsWhatIsNotThere)
{
    EXPECT_EQ(ProtocolPair(L"X", {L"gone"}, 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolPair(L"X", {L"gone", L"3"}, 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam", L"3", L"gone", L"9600"}, 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
    WriteProtocol(L"Y", {});
    EXPECT_EQ(ProtocolPair(L"Y", {}, 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolGetEnumValue, EndsForEveryIndexBehindTheLast)
{
    for (const Question& asked : questions)
    {
        EXPECT_EQ(ProtocolPair(L"X", asked, 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
    }
}

TEST_F(ProtocolGetEnumValue, GivesNamesAndValuesAsTheyStand)
{
    const XmlContent entry = XmlContent().Text(L"\u00DCber", L"<&> \u03A9; =");
    const XmlContent values =
        XmlContent().Element(L"ValueCollection", XmlContent().ParamSection(L"1", entry));
    WriteProtocol(L"Y", XmlContent().Element(L"Constraints", XmlContent().ParamSection(L"a", values)));

    EXPECT_EQ(ProtocolPair(L"Y", {L"a", L"1"}, 0), L"\u00DCber=<&> \u03A9; =");
}

TEST_F(ProtocolGetEnumValue, FillsBuffersOfOneCharacterMoreThanTheTexts)
{
    for (const Question& asked : questions)
    {
        OutputBuffer name(300);
        OutputBuffer value(300);
        ASSERT_EQ(Ask(asked, name, value), PGSP_OK);

        OutputBuffer exactName(name.length + 1);
        OutputBuffer exactValue(value.length + 1);
        EXPECT_EQ(Ask(asked, exactName, exactValue), PGSP_OK);

        EXPECT_EQ(exactName.text(), name.text());
        EXPECT_EQ(exactValue.text(), value.text());
    }
}

TEST_F(ProtocolGetEnumValue, LeavesTheValueAloneWhenTheNameDoesNotFit)
{
    for (const Question& asked : questions)
    {
        OutputBuffer all(300);
        OutputBuffer value(300);
        ASSERT_EQ(Ask(asked, all, value), PGSP_OK);
        for (const std::uint32_t capacity : {0U, all.length})
        {
            OutputBuffer name(capacity);
            OutputBuffer untouched(1);

            EXPECT_EQ(Ask(asked, name, untouched), PGSP_ERR_BUFFER_TOO_SHORT);

            EXPECT_TRUE(name.isUntouched());
            EXPECT_EQ(name.length, all.length);
            EXPECT_TRUE(untouched.isUntouched());
            EXPECT_EQ(untouched.length, 1U);
        }
    }
}

TEST_F(ProtocolGetEnumValue, HasCopiedTheNameWhenTheValueDoesNotFit)
{
    for (const Question& asked : questions)
    {
        OutputBuffer all(300);
        OutputBuffer name(300);
        ASSERT_EQ(Ask(asked, name, all), PGSP_OK);
        for (const std::uint32_t capacity : {0U, all.length})
        {
            OutputBuffer copied(300);
            OutputBuffer value(capacity);

            EXPECT_EQ(Ask(asked, copied, value), PGSP_ERR_BUFFER_TOO_SHORT);

            EXPECT_EQ(copied.text(), name.text());
            EXPECT_TRUE(value.isUntouched());
            EXPECT_EQ(value.length, all.length);
        }
    }
}

} // namespace
} // namespace norvepa::test
