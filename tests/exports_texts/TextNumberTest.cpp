#include "TextScene.h"

namespace norvepa::test
{
namespace
{

class TextNumber : public TextScene
{
protected:
    // The text that a name leads to which has this number.
    [[nodiscard]] std::wstring TitleOf(std::wstring_view resourceId, const std::wstring& parameter) const
    {
        WriteDevice(TitleLink(resourceId));
        return Text(parameter);
    }

    // Every number there is has a text that begins with it, but for those that say otherwise.
    void WriteTextsAtTheEdges() const
    {
        WriteBytes(bin() + L"\\de\\" + TexteDll, TextLibrary()
                                                     .Text(0, L"0")
                                                     .Text(1, L"1")
                                                     .Text(15, L"15")
                                                     .Text(16, L"16")
                                                     .Text(17, L"17")
                                                     .Text(65535, L"65535")
                                                     .file());
    }
};

const std::wstring NoText = Failed(PGSP_ERR_CANT_LOAD_RESOURCE);

TEST_F(TextNumber, IsTheLinksOwnForABareName)
{
    EXPECT_EQ(TitleOf(L"1000", L"Title"), L"Kessel");
    EXPECT_EQ(TitleOf(L"1001", L"Title"), L"Presse");
}

TEST_F(TextNumber, CountsFromTheLinksOwnBehindABackslash)
{
    EXPECT_EQ(TitleOf(L"1000", L"Title\\0"), L"Kessel");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\1"), L"Presse");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\3"), L"Silo");
    EXPECT_EQ(TitleOf(L"1001", L"Title\\2"), L"Silo");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\5"), NoText);
}

TEST_F(TextNumber, CountsByWhatADecimalNumberBeginsWith)
{
    EXPECT_EQ(TitleOf(L"1000", L"Title\\ 3"), L"Silo");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\+3"), L"Silo");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\003"), L"Silo");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\3rd"), L"Silo");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\3\\1"), L"Silo");
    EXPECT_EQ(TitleOf(L" 1000 and more", L"Title\\3"), L"Silo");
}

TEST_F(TextNumber, IsTheLinksOwnBehindABackslashWithoutANumber)
{
    EXPECT_EQ(TitleOf(L"1000", L"Title\\"), L"Kessel");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\x"), L"Kessel");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\x3"), L"Kessel");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\\\3"), L"Kessel");
    EXPECT_EQ(TitleOf(L"1000", L"Title\\0x3"), L"Kessel");
}

TEST_F(TextNumber, CountsDownToo)
{
    EXPECT_EQ(TitleOf(L"1001", L"Title\\-1"), L"Kessel");
    EXPECT_EQ(TitleOf(L"-1", L"Title\\1001"), L"Kessel");
}

TEST_F(TextNumber, MayBeAnyOfThoseThatALibraryHas)
{
    WriteTextsAtTheEdges();

    EXPECT_EQ(TitleOf(L"0", L"Title"), L"0");
    EXPECT_EQ(TitleOf(L"15", L"Title"), L"15");
    EXPECT_EQ(TitleOf(L"16", L"Title"), L"16");
    EXPECT_EQ(TitleOf(L"15", L"Title\\1"), L"16");
    EXPECT_EQ(TitleOf(L"65535", L"Title"), L"65535");
    EXPECT_EQ(TitleOf(L"2", L"Title"), NoText);
    EXPECT_EQ(TitleOf(L"65534", L"Title"), NoText);
}

TEST_F(TextNumber, IsZeroForALinkWithoutOne)
{
    WriteTextsAtTheEdges();
    WriteDevice({.name = L"Title", .assembly = TexteDll, .path = L""});
    EXPECT_EQ(Text(L"Title"), L"0");
    EXPECT_EQ(Text(L"Title\\15"), L"15");

    EXPECT_EQ(TitleOf(L"", L"Title"), L"0");
    EXPECT_EQ(TitleOf(L"fifteen", L"Title\\16"), L"16");
}

TEST_F(TextNumber, BeyondWhatALibraryCanHaveLeadsNowhere)
{
    WriteTextsAtTheEdges();

    EXPECT_EQ(TitleOf(L"-1", L"Title"), NoText);
    EXPECT_EQ(TitleOf(L"0", L"Title\\-1"), NoText);
    EXPECT_EQ(TitleOf(L"65536", L"Title"), NoText);
    EXPECT_EQ(TitleOf(L"65535", L"Title\\1"), NoText);
    EXPECT_EQ(TitleOf(L"-65535", L"Title\\-1"), NoText);
}

TEST_F(TextNumber, OfAnyLengthLeadsNowhereWithoutHarm)
{
    WriteTextsAtTheEdges();

    for (const wchar_t* const huge : {L"2147483647", L"-2147483648", L"4294967295", L"4294967296",
                                      L"99999999999999999999999999", L"-99999999999999999999999999"})
    {
        SCOPED_TRACE(ToUtf8(huge));
        EXPECT_EQ(TitleOf(huge, L"Title"), NoText);
        EXPECT_EQ(TitleOf(huge, std::wstring(L"Title\\") + huge), NoText);
        EXPECT_EQ(TitleOf(L"1", std::wstring(L"Title\\") + huge), NoText);
    }
}

TEST_F(TextNumber, BehindABackslashIsNoPartOfTheName)
{
    WriteDevice({.name = L"Title\\3", .assembly = TexteDll, .path = L"", .resourceId = L"1000"});

    EXPECT_EQ(Text(L"Title\\3"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

} // namespace
} // namespace norvepa::test
