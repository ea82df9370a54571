#include "win/Published.h"

#include "FailingNew.h"

#include <gmock/gmock.h>
#include <new>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointee;

using Numbers = std::vector<int>;

bool AddOne(Numbers& list)
{
    list.push_back(1);
    return true;
}

// False when the nth allocation failed.
bool UpdatesInAShortage(win::Published<Numbers>& numbers, std::size_t nth)
{
    const FailingNew failing(nth, Shortage::Passing);
    try
    {
        numbers.Update(&AddOne);
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
    return true;
}

TEST(PublishedOutOfMemory, LeavesWhatWasPublishedAsItWas)
{
    win::Published<Numbers> numbers;
    numbers.Update(&AddOne);

    std::size_t nth = 1;
    for (; !UpdatesInAShortage(numbers, nth); ++nth)
    {
        EXPECT_THAT(numbers.Get(), Pointee(ElementsAre(1)));
    }

    EXPECT_GT(nth, 2U); // the version, and what is in it
    EXPECT_THAT(numbers.Get(), Pointee(ElementsAre(1, 1)));
}

TEST(PublishedOutOfMemory, LendsAndClearsAllTheSame)
{
    win::Published<Numbers> numbers;
    numbers.Update(&AddOne);
    bool hasFailed = true;
    {
        const FailingNew failing(1, Shortage::Lasting);
        const auto lent = numbers.Get();
        numbers.Clear();
        hasFailed = failing.hasFailed();
    }

    EXPECT_FALSE(hasFailed);
    EXPECT_THAT(numbers.Get(), Pointee(IsEmpty()));
}

} // namespace
} // namespace norvepa::test
