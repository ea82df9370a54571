#include "win/Mutex.h"

#include "support/AllAtOnce.h"
#include "win/Handle.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <mutex>
#include <thread>

namespace norvepa::win
{
namespace
{

template <typename Lock>
class AnyMutex : public testing::Test
{
protected:
    Lock lock;
};

using Locks = testing::Types<Mutex, SharedMutex, RecursiveMutex>;
TYPED_TEST_SUITE(AnyMutex, Locks);

TYPED_TEST(AnyMutex, LetsInOneThreadAtATime)
{
    constexpr int threadCount = 4;
    constexpr int roundsEach = 20'000;
    volatile int entries = 0; // two threads within the lock would lose some of them
    volatile int within = 0;
    int together = 0;

    test::AllAtOnce(threadCount, [&](int) {
        for (int round = 0; round < roundsEach; ++round)
        {
            const std::lock_guard guard(this->lock);
            within = within + 1;
            together += within == 1 ? 0 : 1;
            entries = entries + 1;
            within = within - 1;
        }
    });

    EXPECT_EQ(entries, threadCount * roundsEach);
    EXPECT_EQ(together, 0);
}

TYPED_TEST(AnyMutex, ShowsTheNextThreadWhatTheLastHasWritten)
{
    constexpr int threadCount = 4;
    constexpr int roundsEach = 5'000;
    int first = 0;
    int second = 0;
    int different = 0;

    test::AllAtOnce(threadCount, [&](int) {
        for (int round = 0; round < roundsEach; ++round)
        {
            const std::lock_guard guard(this->lock);
            different += first == second ? 0 : 1;
            ++first;
            ++second;
        }
    });

    EXPECT_EQ(different, 0);
    EXPECT_EQ(first, threadCount * roundsEach);
}

// Another thread that locks at once, and tells when it has and when it has unlocked.
template <typename Lock>
class Other
{
public:
    explicit Other(Lock& lock)
        : m_thread([this, &lock] {
              SetEvent(m_begun.get());
              const std::lock_guard guard(lock);
              SetEvent(m_locked.get());
          })
    {
        WaitForSingleObject(m_begun.get(), INFINITE);
    }
    Other(const Other&) = delete;
    Other& operator=(const Other&) = delete;
    ~Other() { m_thread.join(); }

    [[nodiscard]] bool HasLocked(DWORD milliseconds = 0) const
    {
        return WaitForSingleObject(m_locked.get(), milliseconds) == WAIT_OBJECT_0;
    }

private:
    Handle m_begun{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    Handle m_locked{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    std::thread m_thread; // behind the events that it sets
};

constexpr DWORD Patience = 60'000; // milliseconds
constexpr DWORD AWhile = 20;       // for a thread to come through that mustn't

TYPED_TEST(AnyMutex, KeepsAnotherThreadWaitingUntilItIsUnlocked)
{
    this->lock.lock();
    const Other other(this->lock);
    EXPECT_FALSE(other.HasLocked(AWhile));

    this->lock.unlock();

    EXPECT_TRUE(other.HasLocked(Patience));
}

TEST(RecursiveMutexTest, IsFreeWhenItHasBeenUnlockedAsOften)
{
    RecursiveMutex lock;
    lock.lock();
    lock.lock();
    lock.lock();
    const Other other(lock);

    lock.unlock();
    EXPECT_FALSE(other.HasLocked(AWhile));
    lock.unlock();
    EXPECT_FALSE(other.HasLocked(AWhile));
    lock.unlock();

    EXPECT_TRUE(other.HasLocked(Patience));
}

TEST(RecursiveMutexTest, MayBeLockedAnewWithinTheLock)
{
    RecursiveMutex lock;
    lock.lock();

    for (int round = 0; round < 3; ++round)
    {
        const std::lock_guard outer(lock);
        const std::lock_guard inner(lock);
    }

    const Other other(lock);
    EXPECT_FALSE(other.HasLocked(AWhile));
    lock.unlock();
    EXPECT_TRUE(other.HasLocked(Patience));
}

TEST(RecursiveMutexTest, CountsForEachThreadThatHasIt)
{
    constexpr int threadCount = 4;
    constexpr int roundsEach = 5'000;
    RecursiveMutex lock;
    volatile int entries = 0;

    test::AllAtOnce(threadCount, [&](int thread) {
        for (int round = 0; round < roundsEach; ++round)
        {
            const int depth = 1 + (thread + round) % 4;
            for (int level = 0; level < depth; ++level)
            {
                lock.lock();
                entries = entries + 1;
            }
            for (int level = 0; level < depth; ++level)
            {
                entries = entries - 1;
                lock.unlock();
            }
        }
    });

    EXPECT_EQ(entries, 0);
}

} // namespace
} // namespace norvepa::win
