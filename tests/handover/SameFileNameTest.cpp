#include "handover/norvepaFileCache.h"

#include <gtest/gtest.h>

namespace norvepa
{
namespace
{

TEST(SameFileName, IsEqualText)
{
    EXPECT_TRUE(SameFileName(L"C:\\data\\Presse#3.xml", L"C:\\data\\Presse#3.xml"));
    EXPECT_TRUE(SameFileName(L"", L""));
}

TEST(SameFileName, HoldsWhateverTheCaseOfEachAsciiLetter)
{
    for (char16_t letter = u'a'; letter <= u'z'; ++letter)
    {
        const std::wstring small(1, static_cast<wchar_t>(letter));
        const std::wstring capital(1, static_cast<wchar_t>(letter - u'a' + u'A'));
        EXPECT_TRUE(SameFileName(small, capital)) << static_cast<char>(letter);
        EXPECT_TRUE(SameFileName(capital, small)) << static_cast<char>(letter);
    }
    EXPECT_TRUE(SameFileName(L"C:\\DATA\\presse.XML", L"c:\\data\\PRESSE.xml"));
}

TEST(SameFileName, TakesOtherLettersAsTheyAre)
{
    EXPECT_FALSE(SameFileName(L"\u00C4", L"\u00E4"));
    EXPECT_FALSE(SameFileName(L"\u03A3", L"\u03C3"));
    EXPECT_FALSE(SameFileName(L"\u0414", L"\u0434"));
    EXPECT_FALSE(SameFileName(L"\uFF21", L"\uFF41")); // wide forms of A and a
    EXPECT_FALSE(SameFileName(L"K", L"\u212A"));      // the sign of kelvin
    EXPECT_FALSE(SameFileName(L"i", L"\u0130"));
    EXPECT_TRUE(SameFileName(L"\u00C4", L"\u00C4"));
}

// Their codes lie as far apart as those of a letter and its capital.
TEST(SameFileName, TakesWhatStandsAroundTheLettersAsItIs)
{
    EXPECT_FALSE(SameFileName(L"@", L"`"));
    EXPECT_FALSE(SameFileName(L"[", L"{"));
    EXPECT_FALSE(SameFileName(L"\\", L"|"));
    EXPECT_FALSE(SameFileName(L"]", L"}"));
    EXPECT_FALSE(SameFileName(L"^", L"~"));
    EXPECT_FALSE(SameFileName(L"1", L"\u0011"));
}

TEST(SameFileName, IsOfTheSameLength)
{
    EXPECT_FALSE(SameFileName(L"a", L"ab"));
    EXPECT_FALSE(SameFileName(L"ab", L"a"));
    EXPECT_FALSE(SameFileName(L"", L"a"));
    EXPECT_FALSE(SameFileName(L"a.xml", L"a.xml "));
}

TEST(SameFileName, IsNoOtherWayToTheFile)
{
    EXPECT_FALSE(SameFileName(L"C:\\data\\a.xml", L"C:/data/a.xml"));
    EXPECT_FALSE(SameFileName(L"C:\\data\\a.xml", L"C:\\data\\\\a.xml"));
    EXPECT_FALSE(SameFileName(L"C:\\data\\a.xml", L"a.xml"));
}

} // namespace
} // namespace norvepa
