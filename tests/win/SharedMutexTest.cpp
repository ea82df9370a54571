#include "support/AllAtOnce.h"
#include "support/Eventually.h"
#include "win/Mutex.h"

#include <windows.h>

#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <shared_mutex>
#include <thread>
#include <vector>

namespace norvepa::test
{
namespace
{

class ASharedMutex : public testing::Test
{
protected:
    win::SharedMutex mutex;
};

TEST_F(ASharedMutex, LetsInManyAtOnce)
{
    constexpr int threads = 4;
    std::atomic<int> within = 0;

    AllAtOnce(threads, [&](int /*thread*/) {
        const std::shared_lock shared(mutex);
        ++within;
        EXPECT_TRUE(Eventually([&] { return within == threads; }));
    });
}

TEST_F(ASharedMutex, LetsInOneAloneOrManyAndNeverBoth)
{
    std::atomic<int> many = 0;
    std::atomic<int> one = 0;
    std::atomic<int> wrong = 0;

    AllAtOnce(4, [&](int thread) {
        for (int round = 0; round < 5'000; ++round)
        {
            if (thread == 0)
            {
                const std::lock_guard alone(mutex);
                ++one;
                wrong += many == 0 ? 0 : 1;
                --one;
            }
            else
            {
                const std::shared_lock shared(mutex);
                ++many;
                wrong += one == 0 ? 0 : 1;
                --many;
            }
        }
    });

    EXPECT_EQ(wrong, 0);
}

// Of the others one at least is always within, or about to be.
TEST_F(ASharedMutex, LetsInTheOneHoweverManyComeOneBehindTheOther)
{
    std::atomic<bool> isOver = false;
    std::atomic<int> timesAlone = 0;
    std::vector<std::jthread> many;
    for (int thread = 0; thread < 3; ++thread)
    {
        many.emplace_back([&] {
            while (!isOver)
            {
                const std::shared_lock shared(mutex);
                SleepEx(1, FALSE);
            }
        });
    }

    const std::jthread one([&] {
        while (!isOver && timesAlone < 20)
        {
            const std::lock_guard alone(mutex);
            ++timesAlone;
        }
    });

    EXPECT_TRUE(Eventually([&] { return timesAlone == 20; }));
    isOver = true;
}

TEST_F(ASharedMutex, IsFreeOnceItWasLetGoOf)
{
    {
        const std::shared_lock shared(mutex);
    }
    {
        const std::lock_guard alone(mutex);
    }

    std::thread([&] { const std::lock_guard alone(mutex); }).join();
}

} // namespace
} // namespace norvepa::test
