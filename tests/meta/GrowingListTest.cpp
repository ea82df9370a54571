#include "meta/GrowingList.h"

#include "support/AllAtOnce.h"

#include <gmock/gmock.h>
#include <memory>
#include <vector>

namespace norvepa
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int Threads = 8;
constexpr int Appends = 5'000; // of each thread

std::vector<int> All(const GrowingList<int>& list)
{
    std::vector<int> numbers;
    static_cast<void>(list.Find([&](int number) {
        numbers.push_back(number);
        return false;
    }));
    return numbers;
}

TEST(GrowingList, IsEmptyInTheBeginning)
{
    const GrowingList<int> list(10);

    EXPECT_THAT(All(list), IsEmpty());
}

TEST(GrowingList, FindsTheFirstThatFits)
{
    GrowingList<int> list(10);
    for (const int number : {1, 4, 6})
    {
        list.Append(number);
    }

    const int* const found = list.Find([](int number) { return number % 2 == 0; });

    ASSERT_NE(found, nullptr);
    EXPECT_EQ(*found, 4);
    EXPECT_EQ(list.Find([](int number) { return number > 6; }), nullptr);
}

TEST(GrowingList, LeavesThingsWhereTheyAre)
{
    GrowingList<int> list(1'000);
    list.Append(0);
    const auto isFirst = [](int number) { return number == 0; };
    const int* const before = list.Find(isFirst);

    for (int number = 1; number < 1'000; ++number)
    {
        list.Append(number);
    }

    EXPECT_EQ(list.Find(isFirst), before);
}

TEST(GrowingList, TakesNoMoreThanItsCapacity)
{
    GrowingList<int> list(2);
    for (const int number : {1, 2, 3, 4})
    {
        list.Append(number);
    }

    EXPECT_THAT(All(list), ElementsAre(1, 2));
}

TEST(GrowingList, TakesItsThingsAlongWhenItGoes)
{
    const auto thing = std::make_shared<int>(1);
    {
        GrowingList<std::shared_ptr<int>> list(1);
        list.Append(thing);
        list.Append(thing); // has no place
        EXPECT_EQ(thing.use_count(), 2);
    }

    EXPECT_EQ(thing.use_count(), 1);
}

TEST(GrowingList, LosesNothingOfRacingAppends)
{
    GrowingList<int> list(Threads * Appends);

    test::AllAtOnce(Threads, [&](int thread) {
        for (int i = 0; i < Appends; ++i)
        {
            list.Append(thread * Appends + i);
        }
    });

    // Each number is there once, those of one thread in their order.
    std::vector<int> next(Threads, 0);
    for (const int number : All(list))
    {
        int& expected = next[static_cast<std::size_t>(number / Appends)];
        ASSERT_EQ(number % Appends, expected);
        ++expected;
    }
    EXPECT_EQ(next, std::vector<int>(Threads, Appends));
}

TEST(GrowingList, TakesNoMoreThanItsCapacityOfRacingAppends)
{
    constexpr int capacity = 1'000;
    GrowingList<int> list(capacity);

    test::AllAtOnce(Threads, [&](int) {
        for (int i = 0; i < capacity; ++i)
        {
            list.Append(i);
        }
    });

    EXPECT_EQ(All(list).size(), std::size_t{capacity});
}

} // namespace
} // namespace norvepa
