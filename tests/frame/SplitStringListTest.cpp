#include "frame/PackStringList.h"
#include "support/ListBuffer.h"

#include <gmock/gmock.h>
#include <limits>

namespace norvepa
{
namespace
{

using test::Packed;
using test::PackedWithoutEnd;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SplitStringList, GivesTheStringsWhoseTerminatorsAreCounted)
{
    const std::wstring list = PackedWithoutEnd({L"abc", L"d"});

    EXPECT_THAT(SplitStringList(list.c_str(), 6), ElementsAre(L"abc", L"d"));
}

TEST(SplitStringList, GivesAnEmptyStringForAnEndThatIsCounted)
{
    const std::wstring list = Packed({L"abc", L"d"});

    EXPECT_THAT(SplitStringList(list.c_str(), 7), ElementsAre(L"abc", L"d", L""));
}

TEST(SplitStringList, TakesAStringWholeThatBeginsWithinTheLength)
{
    const std::wstring list = PackedWithoutEnd({L"abc", L"def"});

    EXPECT_THAT(SplitStringList(list.c_str(), 1), ElementsAre(L"abc"));
    EXPECT_THAT(SplitStringList(list.c_str(), 4), ElementsAre(L"abc"));
    EXPECT_THAT(SplitStringList(list.c_str(), 5), ElementsAre(L"abc", L"def"));
}

TEST(SplitStringList, GivesEmptyStringsOnTheWayToo)
{
    const std::wstring list = PackedWithoutEnd({L"", L"a", L"", L"b"});

    EXPECT_THAT(SplitStringList(list.c_str(), 6), ElementsAre(L"", L"a", L"", L"b"));
}

TEST(SplitStringList, GivesNothingForALengthOfZeroOrLess)
{
    EXPECT_THAT(SplitStringList(L"abc", 0), IsEmpty());
    EXPECT_THAT(SplitStringList(nullptr, 0), IsEmpty());
    EXPECT_THAT(SplitStringList(L"abc", -1), IsEmpty());
    EXPECT_THAT(SplitStringList(L"abc", std::numeric_limits<std::int32_t>::min()), IsEmpty());
}

} // namespace
} // namespace norvepa
