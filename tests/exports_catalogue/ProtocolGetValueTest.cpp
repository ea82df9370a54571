#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProtocolGetValue : public CatalogueScene
{
protected:
    ProtocolGetValue() { WriteProtocol(L"X", BusProtocol()); }

    // A protocol with the attribute `CP_TYPE` on its root, and a word of that name for a parameter "a".
    void WriteTwoPlaces(const std::wstring& root, const std::wstring& word) const
    {
        const XmlContent constraints =
            XmlContent().ParamSection(L"a", XmlContent().Element(L"CP_TYPE", word));
        WriteBytes(roots.protocol(L"Y"),
                   ProtocolFile(XmlContent().Element(L"Constraints", constraints), root));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* protocol, const Question& asked, const wchar_t* attribute,
                                   OutputBuffer& text) const
    {
        return library.PGSP_ProtocolGetValueBL(protocol, asked.parameter, asked.value, asked.subParameter,
                                               asked.subValue, attribute, text.data(), &text.length);
    }

    const Question profile{L"busparam", L"3"};
    const Question subProfile{L"busparam", L"3", L"baudrate", L"9600"};
};

TEST_F(ProtocolGetValue, IsTheRootsAttributeWhateverElseIsAsked)
{
    for (const Question& asked : {Question{}, Question{L"gone"}, profile, subProfile})
    {
        EXPECT_EQ(ProtocolValue(L"X", asked, L"CP_TYPE"), L"MPI");
        EXPECT_EQ(ProtocolValue(L"X", asked, L"cp_type"), L"MPI");
    }
    WriteTwoPlaces(L"root", L"word");
    EXPECT_EQ(ProtocolValue(L"Y", {L"a"}, L"CP_TYPE"), L"root");
}

TEST_F(ProtocolGetValue, IsAWordOfAParameterWithoutAValue)
{
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam"}, L"type"), L"int");
    EXPECT_EQ(ProtocolValue(L"X", {L"BUSPARAM", L""}, L"TYPE"), L"int");
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", nullptr, L"baudrate", L"9600"}, L"type"), L"int");
}

TEST_F(ProtocolGetValue, IsWhatAProfileGivesWithAValue)
{
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"0"}, L"slot"), L"100");
    EXPECT_EQ(ProtocolValue(L"X", profile, L"slot"), L"103");
    EXPECT_EQ(ProtocolValue(L"X", {L"baudrate", L"1500000"}, L"gap"), L"2");
}

TEST_F(ProtocolGetValue, IsWhatTheProfileGivesWhenOneOfTheTwoForASubProfileIsMissing)
{
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"3", L"baudrate", L""}, L"slot"), L"103");
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"3", L"baudrate", nullptr}, L"slot"), L"103");
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"3", L"", L"9600"}, L"slot"), L"103");
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"3", nullptr, L"9600"}, L"slot"), L"103");
}

TEST_F(ProtocolGetValue, IsWhatASubProfileGives)
{
    EXPECT_EQ(ProtocolValue(L"X", subProfile, L"slot"), L"9");
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"3", L"baudrate", L"19200"}, L"slot"), L"19");
}

TEST_F(ProtocolGetValue, IsTheDefaultWithoutAnAttribute)
{
    for (const wchar_t* const attribute : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_EQ(ProtocolValue(L"X", profile, attribute), L"of the profile");
        EXPECT_EQ(ProtocolValue(L"X", subProfile, attribute), L"of the baud rate");
        EXPECT_EQ(ProtocolValue(L"X", {L"busparam"}, attribute), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    }
}

TEST_F(ProtocolGetValue, KnowsFourProfilesByTheirWordInAnyCase)
{
    const std::vector<std::pair<const wchar_t*, std::wstring>> profiles{
        {L"DP", L"100"}, {L"Std", L"101"}, {L"Uni", L"102"}, {L"User", L"103"},
        {L"dP", L"100"}, {L"std", L"101"}, {L"UNI", L"102"}, {L"uSER", L"103"}};
    for (const auto& [word, slot] : profiles)
    {
        EXPECT_EQ(ProtocolValue(L"X", {L"busparam", word}, L"slot"), slot);
    }
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"User", L"baudrate", L"9600"}, L"slot"), L"9");
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"Users"}, L"slot"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolGetValue, TellsWhatIsNotThere)
{
    EXPECT_EQ(ProtocolValue(L"X", {}, L"gone"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValue(L"X", {L"baudrate"}, L"gone"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValue(L"X", profile, L"gone"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"4"}, L"slot"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam", L"3", L"baudrate", L"gone"}, L"slot"),
              Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValue(L"gone", profile, L"slot"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(ProtocolGetValue, GoesOnWhenTheRootsAttributeDoesNotFit)
{
    WriteTwoPlaces(L"too long a text", L"fits");
    OutputBuffer text(5);

    EXPECT_EQ(Ask(L"Y", {L"a"}, L"CP_TYPE", text), PGSP_OK);

    EXPECT_EQ(text.text(), L"fits");
    EXPECT_EQ(text.length, 4U);
}

TEST_F(ProtocolGetValue, OffersTheSecondPlaceTheCallersCapacity)
{
    WriteTwoPlaces(L"the longest of all", L"too long");
    OutputBuffer text(6);

    EXPECT_EQ(Ask(L"Y", {L"a"}, L"CP_TYPE", text), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 8U);
}

TEST_F(ProtocolGetValue, IsNotFoundWhenTheRootsAttributeDoesNotFitAndNothingElseHasIt)
{
    OutputBuffer text(3);

    EXPECT_EQ(Ask(L"X", {L"baudrate"}, L"CP_TYPE", text), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 3U);
}

TEST_F(ProtocolGetValue, FillsABufferOfOneCharacterMore)
{
    const std::vector<std::pair<Question, const wchar_t*>> asked{
        {{}, L"CP_TYPE"}, {{L"busparam"}, L"type"}, {profile, L"slot"}, {subProfile, nullptr}};
    for (const auto& [question, attribute] : asked)
    {
        OutputBuffer all(300);
        ASSERT_EQ(Ask(L"X", question, attribute, all), PGSP_OK);
        OutputBuffer oneMore(all.length + 1);

        EXPECT_EQ(Ask(L"X", question, attribute, oneMore), PGSP_OK);

        EXPECT_EQ(oneMore.text(), all.text());
        EXPECT_EQ(oneMore.length, all.length);
    }
}

TEST_F(ProtocolGetValue, TellsTheLengthThatTheLastPlaceNeeds)
{
    const std::vector<std::pair<Question, const wchar_t*>> asked{
        {{L"busparam"}, L"type"}, {profile, L"slot"}, {subProfile, nullptr}};
    for (const auto& [question, attribute] : asked)
    {
        OutputBuffer all(300);
        ASSERT_EQ(Ask(L"X", question, attribute, all), PGSP_OK);
        for (const std::uint32_t capacity : {0U, all.length})
        {
            OutputBuffer text(capacity);

            EXPECT_EQ(Ask(L"X", question, attribute, text), PGSP_ERR_BUFFER_TOO_SHORT);

            EXPECT_TRUE(text.isUntouched());
            EXPECT_EQ(text.length, all.length);
        }
    }
}

} // namespace
} // namespace norvepa::test
