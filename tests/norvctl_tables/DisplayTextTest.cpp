#include "norvctl/DisplayText.h"

#include <gtest/gtest.h>

namespace norvepa::test
{
namespace
{

using norvctl::DisplayWidth;
using norvctl::Padded;
using norvctl::Shortened;

TEST(NorvctlDisplayText, TakesAColumnForALetterWhateverItsBytes)
{
    EXPECT_EQ(DisplayWidth("Kessel"), 6U);
    EXPECT_EQ(DisplayWidth("Gr\u00F6\u00DFe \u00B5\u03A9"), 8U);
}

TEST(NorvctlDisplayText, TakesTwoColumnsForACharacterOfEastAsiaAndNoneForACombiningMark)
{
    EXPECT_EQ(DisplayWidth("\u6F22\u5B57"), 4U);
    EXPECT_EQ(DisplayWidth("u\u0308"), 1U);
}

TEST(NorvctlDisplayText, IsCutBetweenCharacters)
{
    EXPECT_EQ(Shortened("F\u00F6rderb\u00E4nder", 4), "F\u00F6r\u2026");
    EXPECT_LE(DisplayWidth(Shortened("\u6F22\u5B57\u6F22", 4)), 4U);
}

TEST(NorvctlDisplayText, StaysAsItIsWhereItFits)
{
    EXPECT_EQ(Shortened("Labor", 5), "Labor");
    EXPECT_EQ(Padded("Labor", 5), "Labor");
    EXPECT_EQ(Padded("Labor", 3), "Labor");
}

TEST(NorvctlDisplayText, IsPaddedByWhatIsSeen)
{
    EXPECT_EQ(Padded("\u00DCber", 6), "\u00DCber  ");
}

TEST(NorvctlDisplayText, MovesNoCursor)
{
    EXPECT_EQ(norvctl::OnOneLine("one\ntwo\tthree"), "one two three");
}

} // namespace
} // namespace norvepa::test
