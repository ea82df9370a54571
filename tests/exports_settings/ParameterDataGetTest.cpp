#include "ParameterDataScene.h"

namespace norvepa::test
{
namespace
{

class ParameterDataGet : public ParameterDataScene
{
protected:
    ParameterDataGet() { WriteOurs(XmlContent().Text(L"Druck", L"6 bar").Text(L"Leer", L"")); }

    // Also the value that doesn't fit empties the buffer ahead of it, and so does one of no capacity.
    void ExpectTooShort(const wchar_t* parameter, std::uint32_t capacity, std::uint32_t needed) const
    {
        OutputBuffer value(capacity);

        EXPECT_EQ(Get(parameter, value), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        ExpectEmptied(value, needed);
    }
};

TEST_F(ParameterDataGet, FindsEntriesOfTheThreeKindsAtAnyDepthInAnyCase)
{
    WriteOurs(XmlContent()
                  .Int(L"Stufe", L"3")
                  .Entry(L"Resource", L"Aktiv", L"no")
                  .Element(L"Gruppe", XmlContent().Element(L"Innen", XmlContent().Bool(L"Aktiv", L"true")))
                  .Text(L"aktiv", L"second")
                  .Text(L"Gr\u00F6\u00DFe", L"50 %"));

    EXPECT_EQ(OurValue(L"STUFE"), L"3");
    EXPECT_EQ(OurValue(L"aktiv"), L"true");
    EXPECT_EQ(OurValue(L"GR\u00D6\u00DFE"), L"50 %");
}

TEST_F(ParameterDataGet, FindsNothingThatIsNotThere)
{
    EXPECT_EQ(OurValue(L"Temperatur"), L"(result 8513)");
    EXPECT_EQ(OurValue(L"Druck "), L"(result 8513)");

    WriteOurs(XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"Druck")));
    EXPECT_EQ(OurValue(L"Druck"), L"(result 8513)");
}

TEST_F(ParameterDataGet, SeesTheFileAsItIsNow)
{
    EXPECT_EQ(OurValue(L"Druck"), L"6 bar");

    WriteOurs(XmlContent().Text(L"Druck", L"7 bar"));

    EXPECT_EQ(OurValue(L"Druck"), L"7 bar");
}

TEST_F(ParameterDataGet, NeedsOneCharacterMoreThanTheValue)
{
    OutputBuffer value(6);

    EXPECT_EQ(Get(L"Druck", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"6 bar");
    EXPECT_EQ(value.length, 5U);
}

TEST_F(ParameterDataGet, NeedsOneCharacterForAnEmptyValue)
{
    OutputBuffer value(1);

    EXPECT_EQ(Get(L"Leer", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"");
    EXPECT_EQ(value.length, 0U);
}

TEST_F(ParameterDataGet, EmptiesABufferThatIsTooShortAndTellsTheLength)
{
    ExpectTooShort(L"Druck", 5, 5);
    ExpectTooShort(L"Druck", 1, 5);
}

// The first character is written whether or not the caller said that it is there.
TEST_F(ParameterDataGet, EmptiesABufferOfNoCapacityToo)
{
    ExpectTooShort(L"Druck", 0, 5);
    ExpectTooShort(L"Leer", 0, 0);

    OutputBuffer value(0);
    EXPECT_EQ(Get(L"Temperatur", value), PGSP_ERR_PARAM_NOT_FOUND);
    ExpectEmptied(value, 0);
}

TEST_F(ParameterDataGet, ReadsNamesAndValuesOfAnyLength)
{
    const std::wstring text(100'000, L'n');
    WriteOurs(XmlContent().Text(text, text));
    OutputBuffer whole(100'001);

    EXPECT_EQ(Get(text.c_str(), whole), PGSP_OK);

    EXPECT_EQ(whole.text(), text);
}

} // namespace
} // namespace norvepa::test
