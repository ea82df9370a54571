#include "store/EveryRead.h"
#include "store/ReadScene.h"

#include <atomic>
#include <latch>
#include <thread>
#include <vector>

namespace norvepa::test
{
namespace
{

using ParallelReads = ReadScene;

constexpr int Threads = 8;
constexpr int Rounds = 25;

TEST_F(ParallelReads, OfOneFileFindWhatASingleOneFinds)
{
    const std::wstring file = File(LogDeviceFile(ReadableContent()));
    std::latch start(Threads);
    std::atomic<int> found = 0;
    std::atomic<int> different = 0;

    // These threads have never heard of COM, and the reads don't need it.
    std::vector<std::jthread> threads;
    for (int i = 0; i < Threads; ++i)
    {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            for (int round = 0; round < Rounds; ++round)
            {
                for (const Read& read : EveryRead())
                {
                    ++(read.call(file.c_str()) == read.found ? found : different);
                }
            }
        });
    }
    threads.clear();

    EXPECT_EQ(found, Threads * Rounds * static_cast<int>(EveryRead().size()));
    EXPECT_EQ(different, 0);
}

} // namespace
} // namespace norvepa::test
