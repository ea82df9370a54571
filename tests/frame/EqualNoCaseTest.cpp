#include "frame/Text.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa
{
namespace
{

TEST(EqualNoCase, FoldsAsciiLetters)
{
    EXPECT_TRUE(EqualNoCase(L"BAUDRATE", L"baudrate"));
    EXPECT_TRUE(EqualNoCase(L"cp_Type", L"CP_tYPE"));
    EXPECT_FALSE(EqualNoCase(L"baudrate", L"baudrata"));
}

TEST(EqualNoCase, KeepsTheSignsBesideTheLettersApart)
{
    EXPECT_FALSE(EqualNoCase(L"@", L"`"));
    EXPECT_FALSE(EqualNoCase(L"[", L"{"));
    EXPECT_FALSE(EqualNoCase(L"_", L"?"));
    EXPECT_FALSE(EqualNoCase(L"0", L"P"));
}

TEST(EqualNoCase, FoldsUmlauts)
{
    EXPECT_TRUE(EqualNoCase(L"F\u00D6RDERB\u00C4NDER", L"f\u00F6rderb\u00E4nder"));
    EXPECT_TRUE(EqualNoCase(L"\u00DCbersicht", L"\u00FCBERSICHT"));
    EXPECT_FALSE(EqualNoCase(L"\u00F6", L"o"));
}

TEST(EqualNoCase, FoldsGreekAndCyrillicLetters)
{
    EXPECT_TRUE(EqualNoCase(L"\u03A9\u03A3", L"\u03C9\u03C3"));
    EXPECT_TRUE(EqualNoCase(L"\u0416\u042F", L"\u0436\u044F"));
    EXPECT_FALSE(EqualNoCase(L"\u03A9", L"\u03A3"));
}

TEST(EqualNoCase, FoldsLettersBehindAForeignOneToo)
{
    EXPECT_TRUE(EqualNoCase(L"\u00C4BC", L"\u00E4bc"));
    EXPECT_FALSE(EqualNoCase(L"\u00C4BC", L"\u00E4bd"));
    EXPECT_FALSE(EqualNoCase(L"ab\u00C4", L"ac\u00C4"));
}

TEST(EqualNoCase, DoesNotExpandLetters)
{
    EXPECT_FALSE(EqualNoCase(L"stra\u00DFe", L"strasse"));
    EXPECT_FALSE(EqualNoCase(L"stra\u00DFe", L"stra\u1E9Ee"));
    EXPECT_FALSE(EqualNoCase(L"a\u0308", L"\u00E4"));
}

TEST(EqualNoCase, KeepsTextsOfDifferentLengthsApart)
{
    EXPECT_FALSE(EqualNoCase(L"ab", L"abc"));
    EXPECT_FALSE(EqualNoCase(L"abc", L"ab"));
    EXPECT_FALSE(EqualNoCase(L"", L"a"));
    EXPECT_FALSE(EqualNoCase(L"\u00E4", L"\u00E4 "));
    EXPECT_TRUE(EqualNoCase(L"", L""));
}

constexpr std::size_t Limit = 4096;

TEST(EqualNoCaseWithLimit, DoesNotLookBehindTheLimit)
{
    const std::wstring common(Limit, L'a');

    EXPECT_TRUE(EqualNoCase(common + L"x", common + L"y", Limit));
    EXPECT_TRUE(EqualNoCase(common, common + L"y", Limit));
    EXPECT_TRUE(EqualNoCase(common + L"y", std::wstring(Limit, L'A'), Limit));
}

TEST(EqualNoCaseWithLimit, LooksAtTheLastCharacterWithin)
{
    const std::wstring common(Limit - 1, L'a');

    EXPECT_FALSE(EqualNoCase(common + L"x", common + L"y", Limit));
    EXPECT_FALSE(EqualNoCase(common, common + L"y", Limit));
    EXPECT_TRUE(EqualNoCase(common + L"\u00E4", common + L"\u00C4", Limit));
}

TEST(EqualNoCaseWithLimit, IsTheWholeRuleForShortTexts)
{
    EXPECT_TRUE(EqualNoCase(L"Name", L"nAME", Limit));
    EXPECT_FALSE(EqualNoCase(L"Name", L"Names", Limit));
}

} // namespace
} // namespace norvepa
