#include "meta/Published.h"

#include "support/AllAtOnce.h"

#include <atomic>
#include <gmock/gmock.h>
#include <stdexcept>
#include <thread>
#include <vector>

namespace norvepa
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointee;

using Numbers = std::vector<int>;

constexpr int Threads = 8;
constexpr int Updates = 200; // of each thread

TEST(Published, IsEmptyAndNotNullInTheBeginning)
{
    const Published<Numbers> numbers;

    EXPECT_THAT(numbers.Get(), Pointee(IsEmpty()));
}

TEST(Published, LendsWhatTheLastUpdateMade)
{
    Published<Numbers> numbers;
    for (const int number : {1, 2})
    {
        numbers.Update([=](Numbers& list) {
            list.push_back(number);
            return true;
        });
    }

    EXPECT_THAT(numbers.Get(), Pointee(ElementsAre(1, 2)));
}

TEST(Published, LeavesWhatItLentAsItWas)
{
    Published<Numbers> numbers;
    const auto before = numbers.Get();

    numbers.Update([](Numbers& list) {
        list.push_back(1);
        return true;
    });
    const auto between = numbers.Get();
    numbers.Clear();

    EXPECT_THAT(before, Pointee(IsEmpty()));
    EXPECT_THAT(between, Pointee(ElementsAre(1)));
    EXPECT_THAT(numbers.Get(), Pointee(IsEmpty()));
}

TEST(Published, PublishesNothingWhenTheChangeDeclines)
{
    Published<Numbers> numbers;
    const auto before = numbers.Get();

    numbers.Update([](Numbers& list) {
        list.push_back(1);
        return false;
    });

    EXPECT_EQ(numbers.Get(), before);
}

TEST(Published, PublishesNothingWhenTheChangeFails)
{
    Published<Numbers> numbers;
    const auto before = numbers.Get();

    EXPECT_THROW(numbers.Update([](Numbers& list) -> bool {
        list.push_back(1);
        throw std::runtime_error("no");
    }),
                 std::runtime_error);

    EXPECT_EQ(numbers.Get(), before);
}

TEST(Published, CallsTheChangeAgainWithWhatAFasterOneMade)
{
    Published<Numbers> numbers;
    int calls = 0;

    numbers.Update([&](Numbers& list) {
        if (++calls == 1) // another thread is faster
        {
            std::thread([&] {
                numbers.Update([](Numbers& faster) {
                    faster.push_back(1);
                    return true;
                });
            }).join();
        }
        list.push_back(2);
        return true;
    });

    EXPECT_EQ(calls, 2);
    EXPECT_THAT(numbers.Get(), Pointee(ElementsAre(1, 2)));
}

TEST(Published, LosesNothingOfRacingUpdates)
{
    Published<Numbers> numbers;

    test::AllAtOnce(Threads, [&](int thread) {
        for (int i = 0; i < Updates; ++i)
        {
            numbers.Update([&](Numbers& list) {
                list.push_back(thread * Updates + i);
                return true;
            });
        }
    });

    // Each number is there once, those of one thread in their order.
    Numbers next(Threads, 0);
    for (const int number : *numbers.Get())
    {
        int& expected = next[static_cast<std::size_t>(number / Updates)];
        ASSERT_EQ(number % Updates, expected);
        ++expected;
    }
    EXPECT_EQ(next, Numbers(Threads, Updates));
}

TEST(Published, LendsNothingHalfMadeToRacingReaders)
{
    Published<Numbers> numbers; // always as many as the first one says
    std::atomic<bool> isOver = false;
    std::atomic<int> halfMade = 0;
    const auto read = [&] {
        while (!isOver)
        {
            const auto lent = numbers.Get();
            halfMade += !lent->empty() && *lent != Numbers(lent->size(), static_cast<int>(lent->size()));
        }
    };
    const auto write = [&] {
        for (int size = 1; size <= Updates; ++size)
        {
            numbers.Update([=](Numbers& list) {
                list.clear();
                list.resize(static_cast<std::size_t>(size), size);
                return true;
            });
        }
        isOver = true;
    };

    test::AllAtOnce(Threads, [&](int thread) { thread == 0 ? write() : read(); });

    EXPECT_EQ(halfMade, 0);
    EXPECT_THAT(numbers.Get(), Pointee(testing::SizeIs(Updates)));
}

} // namespace
} // namespace norvepa
