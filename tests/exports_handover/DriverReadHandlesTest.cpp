#include "DriverReadScene.h"
#include "support/ProcessResources.h"

namespace norvepa::test
{
namespace
{

// The system's, of a hundred reads that succeed and as many that fail.
using DriverReadHandles = DriverReadScene;

TEST_F(DriverReadHandles, AreAllClosed)
{
    constexpr int warmUp = 3;
    constexpr int reads = 100;
    Write(Holding(L"v"));
    const auto readTimes = [&](int times) {
        for (int time = 0; time < times; ++time)
        {
            static_cast<void>(Read());
            static_cast<void>(ResultOf(L"gone"));
        }
    };
    readTimes(warmUp);
    const ProcessResources before = CountProcessResources();

    readTimes(reads);

    EXPECT_EQ(CountProcessResources().handles, before.handles);
}

} // namespace
} // namespace norvepa::test
