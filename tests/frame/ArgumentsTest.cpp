#include "frame/Arguments.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

TEST(IsMissing, IsTrueForNullAndForTheEmptyText)
{
    EXPECT_TRUE(IsMissing(nullptr));
    EXPECT_TRUE(IsMissing(L""));
}

TEST(IsMissing, TrimsNoBlanksAndKnowsNoSpecialNames)
{
    EXPECT_FALSE(IsMissing(L" "));
    EXPECT_FALSE(IsMissing(L"*"));
    EXPECT_FALSE(IsMissing(L"a"));
}

TEST(TextOrEmpty, TakesNullForAnEmptyText)
{
    EXPECT_EQ(TextOrEmpty(nullptr), L"");
    EXPECT_EQ(TextOrEmpty(L""), L"");
    EXPECT_EQ(TextOrEmpty(L"a"), L"a");
}

} // namespace
} // namespace norvepa
