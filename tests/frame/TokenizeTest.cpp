#include "frame/Text.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Tokenize, SplitsAtBackslashes)
{
    EXPECT_THAT(Tokenize(L"Section\\Sub\\Third"), ElementsAre(L"Section", L"Sub", L"Third"));
    EXPECT_THAT(Tokenize(L"Section"), ElementsAre(L"Section"));
}

TEST(Tokenize, TakesARunOfBackslashesForOne)
{
    EXPECT_THAT(Tokenize(L"a\\\\b\\\\\\c"), ElementsAre(L"a", L"b", L"c"));
}

TEST(Tokenize, SkipsLeadingBackslashes)
{
    EXPECT_THAT(Tokenize(L"\\a"), ElementsAre(L"a"));
    EXPECT_THAT(Tokenize(L"\\\\a\\b"), ElementsAre(L"a", L"b"));
}

TEST(Tokenize, GivesNothingBehindATrailingBackslash)
{
    EXPECT_THAT(Tokenize(L"a\\"), ElementsAre(L"a"));
    EXPECT_THAT(Tokenize(L"a\\\\"), ElementsAre(L"a"));
}

TEST(Tokenize, GivesNothingOfATextWithoutAPart)
{
    EXPECT_THAT(Tokenize(L""), IsEmpty());
    EXPECT_THAT(Tokenize(L"\\\\"), IsEmpty());
}

TEST(Tokenize, KeepsBlanksAndSlashes)
{
    EXPECT_THAT(Tokenize(L" a \\b/c"), ElementsAre(L" a ", L"b/c"));
}

TEST(Tokenize, GivesMoreThanEightPartsToThoseWhoCount)
{
    EXPECT_THAT(Tokenize(L"1\\2\\3\\4\\5\\6\\7\\8\\9\\10"), SizeIs(10));
}

} // namespace
} // namespace norvepa
