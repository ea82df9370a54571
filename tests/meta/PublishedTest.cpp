#include "meta/Published.h"

#include <gmock/gmock.h>
#include <latch>
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
    std::latch start(Threads);

    std::vector<std::jthread> threads;
    for (int thread = 0; thread < Threads; ++thread)
    {
        threads.emplace_back([&, thread] {
            start.arrive_and_wait();
            for (int i = 0; i < Updates; ++i)
            {
                numbers.Update([&](Numbers& list) {
                    list.push_back(thread * Updates + i);
                    return true;
                });
            }
        });
    }
    threads.clear();

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
    std::latch start(Threads);

    std::vector<std::jthread> readers;
    for (int i = 1; i < Threads; ++i)
    {
        readers.emplace_back([&] {
            start.arrive_and_wait();
            while (!isOver)
            {
                const auto lent = numbers.Get();
                halfMade += !lent->empty() && *lent != Numbers(lent->size(), static_cast<int>(lent->size()));
            }
        });
    }
    start.arrive_and_wait();
    for (int size = 1; size <= Updates; ++size)
    {
        numbers.Update([=](Numbers& list) {
            list.clear();
            list.resize(static_cast<std::size_t>(size), size);
            return true;
        });
    }
    isOver = true;
    readers.clear();

    EXPECT_EQ(halfMade, 0);
    EXPECT_THAT(numbers.Get(), Pointee(testing::SizeIs(Updates)));
}

} // namespace
} // namespace norvepa
