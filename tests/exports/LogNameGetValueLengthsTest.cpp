#include "support/LogNameCalls.h"

namespace norvepa::test
{
namespace
{

class LogNameGetValueLengths : public LogNames
{
protected:
    LogNameGetValueLengths()
    {
        Write(L"Pumpe",
              XmlContent().Text(L"Station", L"Halle 2").Text(L"Leer", L"").Text(L"Umlaut", L"\u00DCber"));
    }
};

TEST_F(LogNameGetValueLengths, OfOneCharacterMoreThanTheValueAreEnough)
{
    OutputBuffer value(8);

    EXPECT_EQ(Read(L"Pumpe", L"Station", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"Halle 2");
    EXPECT_EQ(value.length, 7U);
}

TEST_F(LogNameGetValueLengths, OfExactlyTheValueAreTooShort)
{
    OutputBuffer value(7);

    EXPECT_EQ(Read(L"Pumpe", L"Station", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 7U);
}

TEST_F(LogNameGetValueLengths, OfOneCharacterTellWhatIsNeeded)
{
    OutputBuffer value(1);

    EXPECT_EQ(Read(L"Pumpe", L"Station", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 7U);
}

TEST_F(LogNameGetValueLengths, CountCharactersAndNotBytes)
{
    OutputBuffer value(5);

    EXPECT_EQ(Read(L"Pumpe", L"Umlaut", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"\u00DCber");
    EXPECT_EQ(value.length, 4U);
}

TEST_F(LogNameGetValueLengths, OfOneCharacterAreEnoughForAnEmptyValue)
{
    OutputBuffer value(1);

    EXPECT_EQ(Read(L"Pumpe", L"Leer", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"");
    EXPECT_EQ(value.length, 0U);
}

TEST_F(LogNameGetValueLengths, OfZeroAreTooShortForAnEmptyValue)
{
    OutputBuffer value(0);

    EXPECT_EQ(Read(L"Pumpe", L"Leer", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(value.length, 0U);
}

TEST_F(LogNameGetValueLengths, LeadByTwoCallsToAnyValue)
{
    const std::wstring text(5000, L'v');
    Write(L"Lang", XmlContent().Text(L"Text", text));
    OutputBuffer first(0);
    static_cast<void>(Read(L"Lang", L"Text", first));

    OutputBuffer second(first.length + 1);
    EXPECT_EQ(Read(L"Lang", L"Text", second), PGSP_OK);

    EXPECT_EQ(second.text(), text);
}

TEST_F(LogNameGetValueLengths, StayAsTheyWereAfterAnyOtherFailure)
{
    OutputBuffer value(20);

    EXPECT_EQ(Read(L"Pumpe", L"gone", value), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Read(L"gone", L"Station", value), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
}

} // namespace
} // namespace norvepa::test
