#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class BoardGetValueRaw : public CatalogueScene
{
protected:
    BoardGetValueRaw()
    {
        const XmlContent words = XmlContent().Element(L"type", L"int").Element(L"max", L"64");
        WriteBoard(L"X", XmlContent()
                             .Element(L"Install", XmlContent()
                                                      .Text(L"a", L"install")
                                                      .Text(L"DeviceID", L"of the section")
                                                      .Text(L"(default)", L"that one"))
                             .Element(L"BoardAttributes",
                                      XmlContent().Text(L"a", L"attributes").ParamSection(L"Ram", words)));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* path, const wchar_t* parameter, OutputBuffer& value) const
    {
        return library.PGSP_BoardGetValueRawBL(L"X", path, parameter, value.data(), &value.length);
    }
};

TEST_F(BoardGetValueRaw, IsOfTheSectionThatThePathNames)
{
    EXPECT_EQ(BoardValueRaw(L"X", L"Install", L"a"), L"install");
    EXPECT_EQ(BoardValueRaw(L"X", L"BoardAttributes", L"a"), L"attributes");
    EXPECT_EQ(BoardValueRaw(L"X", L"boardattributes", L"A"), L"attributes");
}

TEST_F(BoardGetValueRaw, IsAWordOfAParameterBehindItsSection)
{
    EXPECT_EQ(BoardValueRaw(L"X", L"BoardAttributes\\Ram", L"max"), L"64");
    EXPECT_EQ(BoardValueRaw(L"X", L"BoardAttributes\\Ram", L"min"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(BoardValueRaw(L"X", L"BoardAttributes\\gone", L"max"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(BoardGetValueRaw, WithAPathIsNeverTheRootsAttribute)
{
    EXPECT_EQ(BoardValueRaw(L"X", L"Install", L"DeviceID"), L"of the section");
    EXPECT_EQ(BoardValueRaw(L"X", L"BoardAttributes", L"DeviceID"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(BoardGetValueRaw, WithoutAPathIsOfTheThreePlaces)
{
    for (const wchar_t* const path : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_EQ(BoardValueRaw(L"X", path, L"DeviceID"), L"AFK110");
        EXPECT_EQ(BoardValueRaw(L"X", path, L"a"), L"install");
        EXPECT_EQ(BoardValueRaw(L"X", path, L"gone"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    }
}

TEST_F(BoardGetValueRaw, WithoutAPathPassesOverWhatDoesNotFit)
{
    const XmlContent content =
        XmlContent().Element(L"BoardAttributes", XmlContent().Text(L"DeviceID", L"fits"));
    WriteBytes(roots.board(L"X"), BoardFile(content, L"too long a text"));
    OutputBuffer value(5);

    EXPECT_EQ(Ask(nullptr, L"DeviceID", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"fits");
}

TEST_F(BoardGetValueRaw, IsTheDefaultWithoutAParameter)
{
    for (const wchar_t* const path : {static_cast<const wchar_t*>(nullptr), L"Install"})
    {
        OutputBuffer value(20);

        EXPECT_EQ(Ask(path, nullptr, value), PGSP_OK);
        EXPECT_EQ(BoardValueRaw(L"X", path, L""), L"that one");

        EXPECT_EQ(value.text(), L"that one");
    }
}

TEST_F(BoardGetValueRaw, TellsAPathThatLeadsNowhere)
{
    EXPECT_EQ(BoardValueRaw(L"X", L"gone", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(BoardValueRaw(L"X", L"\\", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(BoardValueRaw(L"gone", L"Install", L"a"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(BoardGetValueRaw, FillsABufferOfOneCharacterMore)
{
    OutputBuffer exact(7);
    OutputBuffer oneMore(8);

    EXPECT_EQ(Ask(L"Install", L"a", exact), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Install", L"a", oneMore), PGSP_OK);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 7U);
    EXPECT_EQ(oneMore.text(), L"install");
    EXPECT_EQ(oneMore.length, 7U);
}

TEST_F(BoardGetValueRaw, OfLengthZeroTellsWhatIsNeeded)
{
    OutputBuffer value(0);

    EXPECT_EQ(Ask(L"Install", L"a", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 7U);
}

} // namespace
} // namespace norvepa::test
