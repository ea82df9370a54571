#include "win/Patience.h"

#include "support/StoppedClock.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{
namespace
{

using win::NumberOfFile;
using win::Patience;
using win::ReadersPatience;

// How a wait goes whose file stays in use: the tries behind the first.
template <typename Patient>
int TriesInVain(Patient& patience)
{
    int tries = 0;
    while (patience.IsWorthAnotherTry())
    {
        ++tries;
    }
    return tries;
}

class APatience : public testing::Test
{
protected:
    static int ReadInVain(std::wstring_view file)
    {
        ReadersPatience reader(NumberOfFile(file));
        return TriesInVain(reader);
    }

    static void ReadInVainOften(int times)
    {
        for (int time = 0; time < times; ++time)
        {
            EXPECT_GT(ReadInVain(L"held " + std::to_wstring(time)), 0) << time;
        }
    }

    StoppedClock clock;
};

// The clock of the machine, which a busy one reads late: so only the lower limit is exact.
TEST_F(APatience, LastsTwentyMillisecondsAndAHundredTries)
{
    const auto begin = std::chrono::steady_clock::now();
    Patience wait(NumberOfFile(L"file"));

    EXPECT_GE(TriesInVain(wait), 100);

    const auto end = std::chrono::steady_clock::now();
    EXPECT_GE(end - begin, std::chrono::milliseconds(20));
    EXPECT_LT(end - begin, std::chrono::milliseconds(500));
}

TEST_F(APatience, BeginsWhenItIsFirstAsked)
{
    Patience wait(NumberOfFile(L"file"));
    SleepEx(30, FALSE);

    EXPECT_TRUE(wait.IsWorthAnotherTry());
}

// However long the tries themselves take.
TEST_F(APatience, LastsAHundredTriesOnABusyMachine)
{
    Patience wait(NumberOfFile(L"file"));
    EXPECT_TRUE(wait.IsWorthAnotherTry());
    SleepEx(30, FALSE);

    EXPECT_EQ(TriesInVain(wait), 99);
}

TEST_F(APatience, HasAnEnd)
{
    Patience wait(NumberOfFile(L"file"));
    TriesInVain(wait);

    EXPECT_FALSE(wait.IsWorthAnotherTry());
}

TEST_F(APatience, OfAReaderIsNotTriedAgainForTheSameFile)
{
    EXPECT_GT(ReadInVain(L"held"), 0);

    EXPECT_EQ(ReadInVain(L"held"), 0);
}

TEST_F(APatience, OfAReaderIsThereForOtherFiles)
{
    ReadInVain(L"held");

    EXPECT_GT(ReadInVain(L"another"), 0);
}

TEST_F(APatience, OfAReaderIsThereAgainOnceSomebodyHasOpenedTheFile)
{
    ReadInVain(L"held");

    ReadersPatience(NumberOfFile(L"held")).Opened();

    EXPECT_GT(ReadInVain(L"held"), 0);
}

TEST_F(APatience, OfAReaderIsNotThereAgainBecauseAnotherFileWasOpened)
{
    ReadInVain(L"held");

    ReadersPatience(NumberOfFile(L"another")).Opened();

    EXPECT_EQ(ReadInVain(L"held"), 0);
}

TEST_F(APatience, OfAReaderIsThereAgainASecondBehindTheLastLook)
{
    ReadInVain(L"held");
    clock.GoOn(999);
    EXPECT_EQ(ReadInVain(L"held"), 0);
    clock.GoOn(999);
    EXPECT_EQ(ReadInVain(L"held"), 0);

    clock.GoOn(1'000);

    EXPECT_GT(ReadInVain(L"held"), 0);
}

TEST_F(APatience, OfReadersIsGoneForAllFilesBehindFiveInVain)
{
    ReadInVainOften(5);

    EXPECT_EQ(ReadInVain(L"a sixth"), 0);
    EXPECT_EQ(ReadInVain(L"a seventh"), 0);
}

TEST_F(APatience, OfReadersIsThereBehindFourInVain)
{
    ReadInVainOften(4);

    EXPECT_GT(ReadInVain(L"a fifth"), 0);
}

TEST_F(APatience, OfReadersIsThereAgainASecondBehindTheFirstOfFive)
{
    ReadInVainOften(1);
    clock.GoOn(600);
    for (const wchar_t* file : {L"a", L"b", L"c", L"d"})
    {
        EXPECT_GT(ReadInVain(file), 0);
    }
    clock.GoOn(399);
    EXPECT_EQ(ReadInVain(L"e"), 0);

    clock.GoOn(1);

    EXPECT_GT(ReadInVain(L"e"), 0);
}

TEST_F(APatience, OfAWriterIsThereWhateverWasInVain)
{
    ReadInVainOften(5);

    Patience writer(NumberOfFile(L"held 0"));
    EXPECT_GT(TriesInVain(writer), 0);
    Patience again(NumberOfFile(L"held 0"));
    EXPECT_GT(TriesInVain(again), 0);
}

TEST_F(APatience, OfReadersIsNotUsedUpByWriters)
{
    for (int time = 0; time < 6; ++time)
    {
        Patience writer(NumberOfFile(L"held"));
        TriesInVain(writer);
        writer.Opened();
    }

    EXPECT_GT(ReadInVain(L"held"), 0);
}

} // namespace
} // namespace norvepa::test
