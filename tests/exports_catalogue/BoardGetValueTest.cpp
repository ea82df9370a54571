#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class BoardGetValue : public CatalogueScene
{
protected:
    // A board with the attribute `CP_TYPE` on its root and a parameter of that name in both sections.
    void WriteThreePlaces(const std::wstring& root, const std::wstring& install,
                          const std::wstring& attributes) const
    {
        const XmlContent content = XmlContent()
                                       .Element(L"BoardAttributes", XmlContent().Text(L"CP_TYPE", attributes))
                                       .Element(L"Install", XmlContent().Text(L"CP_TYPE", install));
        WriteBytes(roots.board(L"X"), BoardFile(content, L"X", root));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* parameter, OutputBuffer& value) const
    {
        return library.PGSP_BoardGetValueBL(L"X", parameter, value.data(), &value.length);
    }
};

TEST_F(BoardGetValue, IsTheRootsAttributeAheadOfAll)
{
    WriteThreePlaces(L"root", L"install", L"attributes");

    EXPECT_EQ(BoardValue(L"X", L"CP_TYPE"), L"root");
    EXPECT_EQ(BoardValue(L"X", L"cp_type"), L"root");
}

TEST_F(BoardGetValue, IsOfInstallAheadOfTheBoardsAttributes)
{
    WriteBoard(L"X", XmlContent()
                         .Element(L"BoardAttributes", XmlContent().Text(L"a", L"attributes"))
                         .Element(L"Install", XmlContent().Text(L"a", L"install")));

    EXPECT_EQ(BoardValue(L"X", L"a"), L"install");
}

TEST_F(BoardGetValue, IsOfTheBoardsAttributesWhenNobodyElseHasIt)
{
    WriteBoard(L"X", XmlContent()
                         .Element(L"Install", XmlContent().Text(L"b", L"install"))
                         .Element(L"BoardAttributes", XmlContent().Text(L"a", L"attributes")));

    EXPECT_EQ(BoardValue(L"X", L"a"), L"attributes");
}

TEST_F(BoardGetValue, IsOfNoOtherSection)
{
    WriteBoard(L"X", XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(BoardValue(L"X", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(BoardGetValue, MayBeEmpty)
{
    WriteThreePlaces(L"", L"install", L"attributes");

    EXPECT_EQ(BoardValue(L"X", L"CP_TYPE"), L"");
}

TEST_F(BoardGetValue, ComesAsItStands)
{
    WriteBoard(L"X", XmlContent().Element(L"Install",
                                          XmlContent().Text(L"Gr\u00F6\u00DFe", L" 9 \u2264 <&\"> \u03A9")));

    EXPECT_EQ(BoardValue(L"X", L"Gr\u00F6\u00DFe"), L" 9 \u2264 <&\"> \u03A9");
    EXPECT_EQ(BoardValue(L"X", L"GR\u00D6\u00DFE"), L" 9 \u2264 <&\"> \u03A9");
}

TEST_F(BoardGetValue, IsTheDefaultWithoutAParameter)
{
    WriteBoard(L"X", XmlContent().Element(L"Install", XmlContent().Text(L"(default)", L"that one")));
    OutputBuffer value(20);

    EXPECT_EQ(BoardValue(L"X", L""), L"that one");
    EXPECT_EQ(Ask(nullptr, value), PGSP_OK);

    EXPECT_EQ(value.text(), L"that one");
}

TEST_F(BoardGetValue, PassesOverAPlaceWhoseValueDoesNotFit)
{
    WriteThreePlaces(L"too long a text", L"fits", L"attributes");
    OutputBuffer value(5);

    EXPECT_EQ(Ask(L"CP_TYPE", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"fits");
    EXPECT_EQ(value.length, 4U);
}

TEST_F(BoardGetValue, PassesOverTwoPlacesWhoseValuesDoNotFit)
{
    WriteThreePlaces(L"too long a text", L"too long as well", L"fits");
    OutputBuffer value(5);

    EXPECT_EQ(Ask(L"CP_TYPE", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"fits");
}

TEST_F(BoardGetValue, OffersEachPlaceTheCallersCapacityAndNotTheLengthOfAnother)
{
    WriteThreePlaces(L"the longest of all", L"too long", L"short");
    OutputBuffer value(6);

    EXPECT_EQ(Ask(L"CP_TYPE", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"short");
    EXPECT_EQ(value.length, 5U);
}

TEST_F(BoardGetValue, TellsTheLengthOfTheLastPlaceWhenNoneFits)
{
    WriteThreePlaces(L"root", L"install", L"attributes");
    OutputBuffer value(4);

    EXPECT_EQ(Ask(L"CP_TYPE", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 10U);
}

TEST_F(BoardGetValue, IsNotFoundWhenItDoesNotFitAndTheLastPlaceHasNone)
{
    WriteBoard(L"X", XmlContent().Element(L"Install", XmlContent().Text(L"a", L"install")));
    OutputBuffer value(7);

    EXPECT_EQ(Ask(L"DeviceID", value), PGSP_OK);
    OutputBuffer shorter(6);
    EXPECT_EQ(Ask(L"DeviceID", shorter), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"a", shorter), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(value.text(), L"AFK110");
    EXPECT_TRUE(shorter.isUntouched());
    EXPECT_EQ(shorter.length, 6U);
}

TEST_F(BoardGetValue, OfLengthZeroIsTooShortForTheLastPlace)
{
    WriteThreePlaces(L"root", L"install", L"");
    OutputBuffer value(0);

    EXPECT_EQ(Ask(L"CP_TYPE", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 0U);
}

TEST_F(BoardGetValue, FillsABufferOfOneCharacterMoreThanTheLastPlacesValue)
{
    WriteBoard(L"X", XmlContent().Element(L"BoardAttributes", XmlContent().Text(L"a", L"attributes")));
    OutputBuffer exact(10);
    OutputBuffer oneMore(11);

    EXPECT_EQ(Ask(L"a", exact), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"a", oneMore), PGSP_OK);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 10U);
    EXPECT_EQ(oneMore.text(), L"attributes");
    EXPECT_EQ(oneMore.length, 10U);
}

TEST_F(BoardGetValue, OfAMissingBoardOrParameterLeavesTheOutputsAlone)
{
    WriteBoard(L"X", {});

    EXPECT_EQ(BoardValue(L"gone", L"a"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(BoardValue(L"X", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(BoardGetValue, OfABrokenFileIsWhatStandsAheadOfTheDamage)
{
    WriteBytes(roots.board(L"X"), "<Device DeviceID='X'><Install><Parameter><Name>a</Name><Value>1</Value>"
                                  "</Parameter></Device>");

    EXPECT_EQ(BoardValue(L"X", L"DeviceID"), L"X");
    EXPECT_EQ(BoardValue(L"X", L"a"), L"1");
    EXPECT_EQ(BoardValue(L"X", L"b"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

} // namespace
} // namespace norvepa::test
