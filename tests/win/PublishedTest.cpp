#include "win/Published.h"

#include "support/AllAtOnce.h"

#include <atomic>
#include <chrono>
#include <gmock/gmock.h>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

namespace norvepa::win
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointee;

using Numbers = std::vector<int>;

constexpr int Threads = 8;
constexpr int Updates = 200; // of each thread

// A number that is counted while it lives, and spoilt when it goes.
struct Tracked
{
    static constexpr int Spoilt = -1;
    static inline std::atomic<int> alive = 0;

    Tracked() noexcept { ++alive; }
    Tracked(const Tracked& other) noexcept : number(other.number.load()) { ++alive; }
    Tracked& operator=(const Tracked&) = delete;
    ~Tracked()
    {
        number = Spoilt;
        --alive;
    }

    std::atomic<int> number = 0;
};

bool CountOn(Tracked& thing)
{
    ++thing.number;
    return true;
}

void CountOn(Published<Tracked>& things, int times)
{
    for (int i = 0; i < times; ++i)
    {
        things.Update([](Tracked& thing) { return CountOn(thing); });
    }
}

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

TEST(Published, LendsWhatAnUpdateMadeOrDeclinedToChange)
{
    Published<Numbers> numbers;
    const auto addTheFirst = [](Numbers& list) {
        list.push_back(1);
        return list.size() == 1;
    };

    const auto made = numbers.UpdateAndGet(addTheFirst);
    const auto declined = numbers.UpdateAndGet(addTheFirst);
    numbers.Clear();

    EXPECT_EQ(made, declined);
    EXPECT_THAT(made, Pointee(ElementsAre(1)));
}

TEST(Published, FreesWhatIsReplacedWhenNobodyReadsIt)
{
    Published<Tracked> things;

    CountOn(things, Updates);
    EXPECT_EQ(Tracked::alive, 2); // that of the beginning and the last one
    things.Clear();

    EXPECT_EQ(Tracked::alive, 1);
}

TEST(Published, LeavesWhatIsBorrowedThroughAllUpdatesAndFreesItWithTheNext)
{
    Published<Tracked> things;
    CountOn(things, 1);
    {
        const auto borrowed = things.Get();

        CountOn(things, Updates);
        things.Clear();
        CountOn(things, Updates);

        EXPECT_EQ(borrowed->number, 1);
    }
    EXPECT_GT(Tracked::alive, 2);
    CountOn(things, 1);

    EXPECT_EQ(Tracked::alive, 2);
}

TEST(Published, FreesWhatWasBorrowedWithTheNextClearing)
{
    Published<Tracked> things;
    CountOn(things, 1);
    {
        const auto borrowed = things.Get();
        CountOn(things, 1);
    }

    things.Clear();

    EXPECT_EQ(Tracked::alive, 1);
}

TEST(Published, FreesWhatALendingUpdateReplacedWithTheNext)
{
    Published<Tracked> things;

    for (int i = 0; i < Updates; ++i)
    {
        const auto lent = things.UpdateAndGet([](Tracked& thing) { return CountOn(thing); });
    }

    EXPECT_EQ(Tracked::alive, 3); // of the beginning, the last one, and that one's predecessor
}

TEST(Published, LeavesAPartOfWhatIsBorrowedReadable)
{
    Published<Tracked> things;
    CountOn(things, 1);
    auto whole = things.Get();
    const std::atomic<int>* const number = &whole->number;

    const Borrowed<const std::atomic<int>> part = std::move(whole).Along(number);
    CountOn(things, Updates);

    ASSERT_EQ(part.get(), number);
    EXPECT_EQ(*part, 1);
}

TEST(Published, TakesBackOnAnyThreadWhatItLentOnAnother)
{
    Published<Tracked> things;
    Borrowed<const Tracked> borrowed;
    std::thread([&] {
        CountOn(things, 1);
        borrowed = things.Get();
    }).join();
    CountOn(things, Updates);
    ASSERT_EQ(borrowed->number, 1);

    std::thread([taken = std::move(borrowed)] { EXPECT_EQ(taken->number, 1); }).join();
    CountOn(things, 1);

    EXPECT_EQ(Tracked::alive, 2);
}

TEST(Published, WaitsForNoReaderWhenItGoes)
{
    Borrowed<const Tracked> borrowed;
    {
        Published<Tracked> things;
        borrowed = things.Get();
        CountOn(things, Updates);
    }

    EXPECT_EQ(Tracked::alive, 0);
}

TEST(Published, LendsNothingThatWasFreedToRacingReaders)
{
    constexpr std::chrono::seconds Duration{1};
    constexpr std::chrono::seconds Patience{60}; // for a machine that is busy with other things
    Published<Tracked> things;
    std::atomic<int> wrong = 0;
    std::atomic<int> reads = 0;
    const auto begin = std::chrono::steady_clock::now();
    const auto isOver = [&] {
        const auto past = std::chrono::steady_clock::now() - begin;
        return past >= Patience || (past >= Duration && reads > Updates);
    };
    const auto read = [&] {
        for (int last = 0; !isOver(); ++reads)
        {
            const auto lent = things.Get();
            const int number = lent->number;
            std::this_thread::yield();
            wrong += number < last || lent->number != number;
            last = number;
        }
    };
    const auto write = [&] {
        while (!isOver())
        {
            CountOn(things, 1);
        }
    };

    test::AllAtOnce(Threads, [&](int thread) { thread % 2 == 0 ? write() : read(); });

    EXPECT_EQ(wrong, 0);
    EXPECT_GT(reads, Updates);
    EXPECT_GT(things.Get()->number, Updates);
    CountOn(things, 1);
    EXPECT_EQ(Tracked::alive, 2);
}

TEST(Published, FreesEachVersionOnceInARaceOfUpdatesAndClearings)
{
    Published<Tracked> things;
    std::atomic<int> wrong = 0;

    test::AllAtOnce(Threads, [&](int thread) {
        for (int i = 0; i < Updates; ++i)
        {
            const auto lent = things.Get();
            const int number = lent->number;
            thread % 4 == 0 ? things.Clear() : CountOn(things, 1);
            wrong += lent->number != number;
        }
    });
    things.Clear();

    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(Tracked::alive, 1);
}

} // namespace
} // namespace norvepa::win
