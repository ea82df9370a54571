#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class BoardGetEnumValue : public CatalogueScene
{
protected:
    BoardGetEnumValue()
    {
        const XmlContent constraints =
            XmlContent()
                .ParamSection(L"speed", XmlContent().Element(L"type", L"int").Element(L"default", L"fast"))
                .ParamSection(L"mode", XmlContent().Element(L"default", L"\u00DCber <&>"));
        WriteBoard(L"X", XmlContent()
                             .Element(L"BoardAttributes", XmlContent().Text(L"Asic", L"A32"))
                             .Element(L"Install", XmlContent().Text(L"Driver", L"x.sys").Int(L"Order", L"7"))
                             .Element(L"Constraints", constraints));
    }

    // Into buffers of these capacities.
    [[nodiscard]] std::int32_t Ask(const std::wstring& board, OutputBuffer& name, OutputBuffer& value) const
    {
        return library.PGSP_BoardGetEnumValueBL(board.c_str(), 0, name.data(), &name.length, value.data(),
                                                &value.length);
    }
};

TEST_F(BoardGetEnumValue, GivesAllParametersOfABoardAndThenTheRootsAttributes)
{
    EXPECT_EQ(BoardPair(L"X", 0), L"Asic=A32");
    EXPECT_EQ(BoardPair(L"X", 1), L"Driver=x.sys");
    EXPECT_EQ(BoardPair(L"X", 2), L"Order=7");
    EXPECT_EQ(BoardPair(L"X", 3), L"CP_TYPE=MPI");
    EXPECT_EQ(BoardPair(L"X", 4), L"DeviceId=AFK110");
    EXPECT_EQ(BoardPair(L"X", 5), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(BoardGetEnumValue, EndsForEveryIndexBehindTheLast)
{
    EXPECT_EQ(BoardPair(L"X", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(BoardPair(L"X\\speed", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(BoardGetEnumValue, GivesTheDefaultsForTheirWordBehindTheBoard)
{
    EXPECT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 0), L"speed=fast");
    EXPECT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 1), L"mode=\u00DCber <&>");
    EXPECT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(BoardGetEnumValue, GivesTheDefaultsForTheirWordAnywhereInATextWithABackslash)
{
    WriteBoard(L"MyConstraintsWithDefaults",
               XmlContent().Element(L"Constraints",
                                    XmlContent().ParamSection(L"a", XmlContent().Element(L"default", L"1"))));

    EXPECT_EQ(BoardPair(L"X\\MyConstraintsWithDefaults\\speed", 0), L"speed=fast");
    EXPECT_EQ(BoardPair(L"MyConstraintsWithDefaults\\speed", 0), L"a=1");
}

TEST_F(BoardGetEnumValue, TakesTheWordOfTheDefaultsWithoutABackslashForABoard)
{
    WriteBoard(L"ConstraintsWithDefault", XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(BoardPair(L"ConstraintsWithDefault", 0), L"a=1");
}

TEST_F(BoardGetEnumValue, TakesTheWordOfTheDefaultsInAnotherCaseForASection)
{
    EXPECT_EQ(BoardPair(L"X\\constraintswithdefault", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(BoardGetEnumValue, GivesTheWordsOfTheSectionBehindTheBoard)
{
    EXPECT_EQ(BoardPair(L"X\\speed", 0), L"default=fast");
    EXPECT_EQ(BoardPair(L"X\\speed", 1), L"type=int");
    EXPECT_EQ(BoardPair(L"X\\speed", 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(BoardPair(L"X\\MODE", 0), L"default=\u00DCber <&>");
}

TEST_F(BoardGetEnumValue, LooksAtTheFirstAndTheLastOfThreePartsAndMore)
{
    EXPECT_EQ(BoardPair(L"X\\anything\\speed", 0), L"default=fast");
    EXPECT_EQ(BoardPair(L"X\\mode\\more\\speed", 0), L"default=fast");
    EXPECT_EQ(BoardPair(L"*X\\\\speed", 0), L"default=fast");
}

TEST_F(BoardGetEnumValue, HasASectionWithoutANameBehindATrailingBackslash)
{
    EXPECT_EQ(BoardPair(L"X\\", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(BoardPair(L"X\\speed\\", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(BoardGetEnumValue, HasABoardWithoutANameAheadOfALeadingBackslash)
{
    EXPECT_EQ(BoardPair(L"\\speed", 0), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(BoardGetEnumValue, TellsAMissingBoardInItsOwnWayForEachEnumeration)
{
    EXPECT_EQ(BoardPair(L"gone", 0), Failed(PGSP_ERR_FILE_NOT_FOUND));
    EXPECT_EQ(BoardPair(L"gone\\speed", 0), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(BoardPair(L"gone\\ConstraintsWithDefault", 0), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(BoardGetEnumValue, TellsWhatABoardDoesNotHold)
{
    WriteBoard(L"Y", {});

    EXPECT_EQ(BoardPair(L"X\\gone", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(BoardPair(L"Y\\ConstraintsWithDefault", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(BoardGetEnumValue, FillsBuffersOfOneCharacterMoreThanTheTexts)
{
    OutputBuffer name(7);
    OutputBuffer value(6);

    EXPECT_EQ(Ask(L"X\\speed", name, value), PGSP_ERR_BUFFER_TOO_SHORT);
    OutputBuffer longer(8);
    EXPECT_EQ(Ask(L"X\\speed", longer, value), PGSP_OK);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 7U);
    EXPECT_EQ(longer.text(), L"default");
    EXPECT_EQ(longer.length, 7U);
    EXPECT_EQ(value.text(), L"fast");
    EXPECT_EQ(value.length, 4U);
}

TEST_F(BoardGetEnumValue, LeavesTheValueAloneWhenTheNameDoesNotFit)
{
    for (const wchar_t* const board : {L"X", L"X\\speed", L"X\\ConstraintsWithDefault"})
    {
        OutputBuffer name(1);
        OutputBuffer value(1);

        EXPECT_EQ(Ask(board, name, value), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(name.isUntouched());
        EXPECT_GT(name.length, 1U);
        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 1U);
    }
}

TEST_F(BoardGetEnumValue, HasCopiedTheNameWhenTheValueDoesNotFit)
{
    for (const wchar_t* const board : {L"X", L"X\\ConstraintsWithDefault"})
    {
        OutputBuffer name(20);
        OutputBuffer value(3);

        EXPECT_EQ(Ask(board, name, value), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_EQ(name.length, name.text().size());
        EXPECT_TRUE(value.isUntouched());
        EXPECT_GE(value.length, 3U);
    }
}

} // namespace
} // namespace norvepa::test
