#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

#include <gtest/gtest.h>

namespace norvepa::test
{
namespace
{

double Signed(const std::wstring& text, const std::wstring& base)
{
    return ConstraintTextToNumber(text, L"int", base);
}

double Unsigned(const std::wstring& text, const std::wstring& base)
{
    return ConstraintTextToNumber(text, L"word", base);
}

TEST(ConstraintNumber, IsReadInItsBase)
{
    EXPECT_EQ(Signed(L"101", L"2"), 5.0);
    EXPECT_EQ(Signed(L"101", L"10"), 101.0);
    EXPECT_EQ(Signed(L"1F", L"16"), 31.0);
    EXPECT_EQ(Signed(L"0x1f", L"16"), 31.0);
    EXPECT_EQ(Signed(L"10y", L"35"), 1259.0);
}

TEST(ConstraintNumber, IsReadInBaseTenWhenTheBaseIsOutOfRange)
{
    for (const wchar_t* const base : {L"1", L"36", L"0", L"-16", L"", L"sixteen", L"99999999999"})
    {
        EXPECT_EQ(Signed(L"10", base), 10.0);
        EXPECT_EQ(Unsigned(L"10", base), 10.0);
    }
}

TEST(ConstraintNumber, TakesTheBaseByItsLeadingDigits)
{
    EXPECT_EQ(Signed(L"10", L" 16 (hex)"), 16.0);
    EXPECT_EQ(Signed(L"10", L"+8"), 8.0);
}

TEST(ConstraintNumber, CountsByItsLeadingDigits)
{
    EXPECT_EQ(Signed(L"12 mm", L"10"), 12.0);
    EXPECT_EQ(Signed(L"1.9", L"10"), 1.0);
    EXPECT_EQ(Signed(L"129", L"8"), 10.0);
    EXPECT_EQ(Signed(L"102", L"2"), 2.0);
    EXPECT_EQ(Signed(L" \t+7", L"10"), 7.0);
}

TEST(ConstraintNumber, IsZeroWithoutLeadingDigits)
{
    EXPECT_EQ(Signed(L"", L"10"), 0.0);
    EXPECT_EQ(Signed(L"mm 12", L"10"), 0.0);
    EXPECT_EQ(Signed(L"2", L"2"), 0.0);
    EXPECT_EQ(Signed(L"F", L"10"), 0.0);
}

TEST(ConstraintNumber, OfAnIntIsSignedInAnyCaseOfTheWord)
{
    EXPECT_EQ(Signed(L"-7", L"10"), -7.0);
    EXPECT_EQ(ConstraintTextToNumber(L"-7", L"INT", L"10"), -7.0);
}

TEST(ConstraintNumber, OfAnyOtherTypeIsUnsigned)
{
    EXPECT_EQ(Unsigned(L"4294967295", L"10"), 4294967295.0);
    EXPECT_EQ(Unsigned(L"-1", L"10"), 4294967295.0);
    EXPECT_EQ(ConstraintTextToNumber(L"-1", L"", L"10"), 4294967295.0);
}

TEST(ConstraintNumber, EndsAtTheLimitsOf32Bits)
{
    EXPECT_EQ(Signed(L"2147483647", L"10"), 2147483647.0);
    EXPECT_EQ(Signed(L"2147483648", L"10"), 2147483647.0);
    EXPECT_EQ(Signed(L"-2147483648", L"10"), -2147483648.0);
    EXPECT_EQ(Signed(L"-99999999999", L"10"), -2147483648.0);
    EXPECT_EQ(Signed(L"FFFFFFFF", L"16"), 2147483647.0);
    EXPECT_EQ(Unsigned(L"FFFFFFFF", L"16"), 4294967295.0);
    EXPECT_EQ(Unsigned(L"99999999999", L"10"), 4294967295.0);
}

} // namespace
} // namespace norvepa::test
