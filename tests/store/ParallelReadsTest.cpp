#include "store/EveryRead.h"
#include "store/ReadScene.h"
#include "store/Together.h"

#include <atomic>

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
    std::atomic<int> found = 0;
    std::atomic<int> different = 0;

    // These threads have never heard of COM, and the reads don't need it.
    Together(Threads, [&](int) {
        for (int round = 0; round < Rounds; ++round)
        {
            for (const Read& read : PullReads())
            {
                ++(read.call(file.c_str()) == read.found ? found : different);
            }
        }
    });

    EXPECT_EQ(found, Threads * Rounds * static_cast<int>(PullReads().size()));
    EXPECT_EQ(different, 0);
}

} // namespace
} // namespace norvepa::test
