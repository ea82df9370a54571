#include "DeviceScene.h"

namespace norvepa::test
{
namespace
{

class CheckValueBounds : public DeviceScene
{
protected:
    // What the board says of "Stufe", the type "int" ahead of it.
    void WriteStufe(ConstraintWords words) const
    {
        XmlContent section = XmlContent().Element(L"type", L"int");
        for (const ConstraintWord& word : words)
        {
            section.Element(word.word, word.text);
        }
        WriteBytes(
            roots.board(L"AFK110"),
            BoardFile(XmlContent().Element(L"Constraints", XmlContent().ParamSection(L"Stufe", section))));
    }

    [[nodiscard]] static Result Stufe(const wchar_t* value) { return Check(L"Stufe", value); }
};

TEST_F(CheckValueBounds, AreMinMaxAndStep)
{
    WriteStufe({{L"min", L"10"}, {L"max", L"20"}, {L"step", L"5"}});

    EXPECT_EQ(Stufe(L"10"), PGSP_OK);
    EXPECT_EQ(Stufe(L"15"), PGSP_OK);
    EXPECT_EQ(Stufe(L"20"), PGSP_OK);
    EXPECT_EQ(Stufe(L"12"), PGSP_NOT_IN_STEP);
    EXPECT_EQ(Stufe(L"9"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(Stufe(L"21"), PGSP_SET_VAL_BIGGER_THAN_MAX);
}

TEST_F(CheckValueBounds, OfATypeInCapitalsHold)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"INT"}, {L"min", L"-5"}, {L"max", L"5"}}));

    EXPECT_EQ(Stufe(L"-6"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(Stufe(L"-5"), PGSP_OK);
    EXPECT_EQ(Stufe(L"6"), PGSP_SET_VAL_BIGGER_THAN_MAX);
}

TEST_F(CheckValueBounds, LeaveTheValueAsItIs)
{
    WriteStufe({{L"min", L"0"}, {L"max", L"20"}});

    EXPECT_EQ(Checked(L"Stufe", L" +007 bar"), L" +007 bar");
}

TEST_F(CheckValueBounds, AreTestedInTheOrderMinMaxStep)
{
    WriteStufe({{L"min", L"10"}, {L"max", L"5"}, {L"step", L"4"}});

    EXPECT_EQ(Stufe(L"7"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(Stufe(L"11"), PGSP_SET_VAL_BIGGER_THAN_MAX);
}

TEST_F(CheckValueBounds, TestTheMinimumAheadOfTheStep)
{
    WriteStufe({{L"min", L"10"}, {L"step", L"4"}});

    EXPECT_EQ(Stufe(L"9"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(Stufe(L"11"), PGSP_NOT_IN_STEP);
    EXPECT_EQ(Stufe(L"14"), PGSP_OK);
}

TEST_F(CheckValueBounds, StepFromTheMinimum)
{
    WriteStufe({{L"min", L"1"}, {L"step", L"2"}});

    EXPECT_EQ(Stufe(L"1"), PGSP_OK);
    EXPECT_EQ(Stufe(L"2"), PGSP_NOT_IN_STEP);
    EXPECT_EQ(Stufe(L"3"), PGSP_OK);
}

TEST_F(CheckValueBounds, StepFromANegativeMinimum)
{
    WriteStufe({{L"min", L"-3"}, {L"step", L"2"}});

    EXPECT_EQ(Stufe(L"-1"), PGSP_OK);
    EXPECT_EQ(Stufe(L"0"), PGSP_NOT_IN_STEP);
}

TEST_F(CheckValueBounds, StepAcrossTheWholeRange)
{
    WriteStufe({{L"min", L"-2147483648"}, {L"step", L"2"}});

    EXPECT_EQ(Stufe(L"2147483646"), PGSP_OK);
    EXPECT_EQ(Stufe(L"2147483647"), PGSP_NOT_IN_STEP);
}

TEST_F(CheckValueBounds, RejectNothingByAStepBelowTwo)
{
    for (const wchar_t* const step : {L"1", L"0", L"-2", L"none"})
    {
        store.WriteBoard(
            Catalogue().Parameter(L"Stufe", {{L"type", L"int"}, {L"min", L"1"}, {L"step", step}}), step);
        store.WriteDevice(L"Presse", {}, step);
        EXPECT_EQ(Stufe(L"2"), PGSP_OK);
        EXPECT_EQ(Stufe(L"3"), PGSP_OK);
    }
}

TEST_F(CheckValueBounds, RejectNothingByAStepWithoutAMinimum)
{
    WriteStufe({{L"max", L"20"}, {L"step", L"5"}});

    EXPECT_EQ(Stufe(L"12"), PGSP_OK);
}

// Without a minimum the value counts as 0.
TEST_F(CheckValueBounds, LetEverythingPassByAMaximumAlone)
{
    WriteStufe({{L"max", L"20"}});

    EXPECT_EQ(Stufe(L"1000"), PGSP_OK);
    EXPECT_EQ(Stufe(L"-1000"), PGSP_OK);
}

TEST_F(CheckValueBounds, LetNothingPassByANegativeMaximumAlone)
{
    WriteStufe({{L"max", L"-1"}});

    EXPECT_EQ(Stufe(L"-5"), PGSP_SET_VAL_BIGGER_THAN_MAX);
    EXPECT_EQ(Stufe(L"0"), PGSP_SET_VAL_BIGGER_THAN_MAX);
}

TEST_F(CheckValueBounds, LetEverythingPassWithoutAny)
{
    WriteStufe({});

    EXPECT_EQ(Stufe(L"1000"), PGSP_OK);
    EXPECT_EQ(Stufe(L"a text"), PGSP_OK);
}

TEST_F(CheckValueBounds, AreReadInTheBaseAndSoIsTheValue)
{
    WriteStufe({{L"min", L"10"}, {L"max", L"1F"}, {L"base", L"16"}});

    EXPECT_EQ(Stufe(L"F"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(Stufe(L"10"), PGSP_OK);
    EXPECT_EQ(Stufe(L"1f"), PGSP_OK);
    EXPECT_EQ(Stufe(L"20"), PGSP_SET_VAL_BIGGER_THAN_MAX);
}

TEST_F(CheckValueBounds, AreReadInTheBaseOfTheStepToo)
{
    WriteStufe({{L"min", L"0"}, {L"step", L"10"}, {L"base", L"8"}});

    EXPECT_EQ(Stufe(L"10"), PGSP_OK);
    EXPECT_EQ(Stufe(L"12"), PGSP_NOT_IN_STEP);
}

TEST_F(CheckValueBounds, AreReadInBaseTenWhenTheBaseIsOutOfRange)
{
    for (const wchar_t* const base : {L"36", L"1"})
    {
        store.WriteBoard(
            Catalogue().Parameter(L"Stufe",
                                  {{L"type", L"int"}, {L"min", L"10"}, {L"max", L"20"}, {L"base", base}}),
            base);
        store.WriteDevice(L"Presse", {}, base);
        EXPECT_EQ(Stufe(L"9"), PGSP_SET_VAL_LESS_THAN_MIN);
        EXPECT_EQ(Stufe(L"20"), PGSP_OK);
        EXPECT_EQ(Stufe(L"21"), PGSP_SET_VAL_BIGGER_THAN_MAX);
    }
}

TEST_F(CheckValueBounds, TakeATextForItsLeadingDigitsAndForZeroWithoutThem)
{
    WriteStufe({{L"min", L"1"}, {L"max", L"9 at most"}});

    EXPECT_EQ(Stufe(L"5 bar"), PGSP_OK);
    EXPECT_EQ(Stufe(L"10 bar"), PGSP_SET_VAL_BIGGER_THAN_MAX);
    EXPECT_EQ(Stufe(L"five"), PGSP_SET_VAL_LESS_THAN_MIN);
}

TEST_F(CheckValueBounds, TakeATextBeyondTheRangeForItsLimit)
{
    WriteStufe({{L"min", L"0"}, {L"max", L"2147483647"}});

    EXPECT_EQ(Stufe(L"99999999999"), PGSP_OK);
    EXPECT_EQ(Stufe(L"-99999999999"), PGSP_SET_VAL_LESS_THAN_MIN);
}

} // namespace
} // namespace norvepa::test
