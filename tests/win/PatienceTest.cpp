#include "win/Patience.h"

#include "win/Waits.h"

#include <windows.h>

#include <chrono>
#include <gtest/gtest.h>

namespace norvepa::test
{
namespace
{

using std::chrono::milliseconds;
using win::NumberOfFile;
using win::Patience;

TEST(AWait, TakesTwentyMilliseconds)
{
    const auto begin = std::chrono::steady_clock::now();
    Patience wait(NumberOfFile(L"file"));

    EXPECT_GE(TriesInVain(wait), 100);

    EXPECT_GE(Since(begin), milliseconds(20));
    EXPECT_LT(Since(begin), milliseconds(500)); // far more, for a machine that is busy
}

TEST(AWait, BeginsWhenItIsFirstAsked)
{
    Patience wait(NumberOfFile(L"file"));
    SleepEx(30, FALSE);
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_GE(TriesInVain(wait), 100);

    EXPECT_GE(Since(begin), milliseconds(20));
}

// However long the tries themselves take.
TEST(AWait, TakesAHundredTriesOnABusyMachine)
{
    Patience wait(NumberOfFile(L"file"));
    EXPECT_TRUE(wait.IsWorthAnotherTry());
    SleepEx(30, FALSE);

    EXPECT_EQ(TriesInVain(wait), 99);
}

TEST(AWait, HasAnEnd)
{
    Patience wait(NumberOfFile(L"file"));
    TriesInVain(wait);

    EXPECT_FALSE(wait.IsWorthAnotherTry());
}

} // namespace
} // namespace norvepa::test
