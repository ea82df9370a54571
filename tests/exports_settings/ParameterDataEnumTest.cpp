#include "ParameterDataScene.h"

namespace norvepa::test
{
namespace
{

class ParameterDataEnum : public ParameterDataScene
{
protected:
    ParameterDataEnum() { WriteOurs(XmlContent().Text(L"Druck", L"6 bar").Text(L"", L"")); }

    // With whatever of the outputs is there.
    [[nodiscard]] std::int32_t EnumInto(wchar_t* nameTo, std::uint32_t* nameLength, wchar_t* valueTo,
                                        std::uint32_t* valueLength) const
    {
        return library.PGSP_EnumParameterMetaDataBL(L"data", nullptr, L"werte", 0, nameTo, nameLength,
                                                    valueTo, valueLength);
    }

    void ExpectValueWritten() const
    {
        EXPECT_EQ(value.text(), L"6 bar");
        EXPECT_EQ(value.length, 5U);
    }

    OutputBuffer name{20};
    OutputBuffer value{30};
};

TEST_F(ParameterDataEnum, CountsEntriesOfTheThreeKindsAtAnyDepth)
{
    WriteOurs(XmlContent()
                  .Int(L"Stufe", L"3")
                  .Comment(L"no entry")
                  .Element(L"Gruppe", XmlContent().Bool(L"Aktiv", L"true").Entry(L"Resource", L"a", L"no"))
                  .Text(L"stufe", L"=4;5"));

    EXPECT_EQ(OurItem(0), L"Stufe=3");
    EXPECT_EQ(OurItem(1), L"Aktiv=true");
    EXPECT_EQ(OurItem(2), L"stufe==4;5");
    EXPECT_EQ(OurItem(3), L"(result 8513)");
}

// Unlike those of all other enumerations its end isn't PGSP_ERR_NO_MORE_ITEMS.
TEST_F(ParameterDataEnum, EndsWithAValueThatIsEmptiedAndANameThatIsNot)
{
    for (const std::uint32_t index : {2U, 3U, 0xFFFF'FFFFU})
    {
        OutputBuffer noName(20);
        OutputBuffer noValue(0);

        EXPECT_EQ(Enum(index, noName, noValue), PGSP_ERR_PARAM_NOT_FOUND) << index;

        ExpectUntouched(noName, 20);
        ExpectEmptied(noValue, 0);
    }
}

TEST_F(ParameterDataEnum, ShowsWhatAnEntryLacksAsEmpty)
{
    WriteOurs(XmlContent()
                  .EmptyTag(L"Parameter")
                  .Element(L"ParameterInt", XmlContent().Element(L"Value", L"1"))
                  .Element(L"ParameterBool", XmlContent().Element(L"Name", L"b")));

    EXPECT_EQ(OurItem(0), L"=");
    EXPECT_EQ(OurItem(1), L"=1");
    EXPECT_EQ(OurItem(2), L"b=");
}

TEST_F(ParameterDataEnum, SeesTheFileAsItIsNow)
{
    EXPECT_EQ(OurItem(0), L"Druck=6 bar");

    WriteOurs(XmlContent().Int(L"Stufe", L"3"));

    EXPECT_EQ(OurItem(0), L"Stufe=3");
    EXPECT_EQ(OurItem(1), L"(result 8513)");
}

TEST_F(ParameterDataEnum, NeedsOneCharacterMoreThanNameAndValue)
{
    OutputBuffer shortName(6);
    OutputBuffer shortValue(6);

    EXPECT_EQ(Enum(0, shortName, shortValue), PGSP_OK);

    EXPECT_EQ(shortName.text(), L"Druck");
    EXPECT_EQ(shortName.length, 5U);
    EXPECT_EQ(shortValue.text(), L"6 bar");
    EXPECT_EQ(shortValue.length, 5U);
}

TEST_F(ParameterDataEnum, NeedsOneCharacterEachForAnEmptyPair)
{
    OutputBuffer shortName(1);
    OutputBuffer shortValue(1);

    EXPECT_EQ(Enum(1, shortName, shortValue), PGSP_OK);

    EXPECT_EQ(shortName.text(), L"");
    EXPECT_EQ(shortName.length, 0U);
    EXPECT_EQ(shortValue.text(), L"");
    EXPECT_EQ(shortValue.length, 0U);
}

TEST_F(ParameterDataEnum, OfAValueThatDoesNotFitTellsItsLengthAndLeavesTheNameAlone)
{
    for (const std::uint32_t capacity : {5U, 1U, 0U})
    {
        OutputBuffer shortValue(capacity);

        EXPECT_EQ(Enum(0, name, shortValue), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        ExpectUntouched(name, 20);
        ExpectEmptied(shortValue, 5);
    }
}

TEST_F(ParameterDataEnum, OfANameThatDoesNotFitTellsItsLengthBehindTheValue)
{
    for (const std::uint32_t capacity : {5U, 1U, 0U})
    {
        OutputBuffer shortName(capacity);
        OutputBuffer itsValue(30);

        EXPECT_EQ(Enum(0, shortName, itsValue), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        ExpectUntouched(shortName, 5);
        EXPECT_EQ(itsValue.text(), L"6 bar");
        EXPECT_EQ(itsValue.length, 5U);
    }
}

TEST_F(ParameterDataEnum, OfAPairThatDoesNotFitTellsTheValuesLengthAlone)
{
    OutputBuffer shortName(2);
    OutputBuffer shortValue(2);

    EXPECT_EQ(Enum(0, shortName, shortValue), PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectUntouched(shortName, 2);
    ExpectEmptied(shortValue, 5);
}

// Whoever has no buffer and says so asks for the length.
TEST_F(ParameterDataEnum, WithoutAValueTellsItsLengthWhenNoRoomIsSaidToBeThere)
{
    for (const std::uint32_t tooShort : {0U, 4U, 5U})
    {
        std::uint32_t length = tooShort;

        EXPECT_EQ(EnumInto(name.data(), &name.length, nullptr, &length), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_EQ(length, 5U);
        ExpectUntouched(name, 20);
    }
}

TEST_F(ParameterDataEnum, WithoutAValueStillTellsTheNameWhenRoomIsSaidToBeThere)
{
    std::uint32_t length = 6;

    EXPECT_EQ(EnumInto(name.data(), &name.length, nullptr, &length), PGSP_OK);

    EXPECT_EQ(length, 6U) << "nothing was copied";
    EXPECT_EQ(name.text(), L"Druck");
}

TEST_F(ParameterDataEnum, WithoutTheValuesLengthIsRefused)
{
    EXPECT_EQ(EnumInto(name.data(), &name.length, value.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(EnumInto(name.data(), &name.length, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    ExpectUntouched(name, 20);
    ExpectEmptied(value, 30);
}

TEST_F(ParameterDataEnum, WithoutANameTellsItsLengthBehindTheValueWhenNoRoomIsSaidToBeThere)
{
    for (const std::uint32_t tooShort : {0U, 4U, 5U})
    {
        std::uint32_t length = tooShort;
        OutputBuffer itsValue(30);

        EXPECT_EQ(EnumInto(nullptr, &length, itsValue.data(), &itsValue.length), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_EQ(length, 5U);
        EXPECT_EQ(itsValue.text(), L"6 bar");
    }
}

TEST_F(ParameterDataEnum, WithoutANameStillTellsTheValueWhenRoomIsSaidToBeThere)
{
    std::uint32_t length = 6;

    EXPECT_EQ(EnumInto(nullptr, &length, value.data(), &value.length), PGSP_OK);

    EXPECT_EQ(length, 6U) << "nothing was copied";
    ExpectValueWritten();
}

TEST_F(ParameterDataEnum, WithoutTheNamesLengthIsRefusedBehindTheValue)
{
    EXPECT_EQ(EnumInto(name.data(), nullptr, value.data(), &value.length), PGSP_ERR_INVALID_PARAMETERS);

    ExpectUntouched(name, 20);
    ExpectValueWritten();
}

TEST_F(ParameterDataEnum, TellsAFailureAheadOfOutputsThatAreNotThere)
{
    WriteBytes(ourFile() + L".xml", "damaged");

    EXPECT_EQ(EnumInto(nullptr, nullptr, nullptr, nullptr), PGSP_ERR_CANT_LOAD_XML_FILE);
}

} // namespace
} // namespace norvepa::test
