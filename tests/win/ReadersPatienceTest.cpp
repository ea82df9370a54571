#include "support/StoppedClock.h"
#include "win/Patience.h"
#include "win/Waits.h"

#include <gtest/gtest.h>
#include <string>

namespace norvepa::test
{
namespace
{

using win::NumberOfFile;
using win::Patience;
using win::ReadersPatience;

constexpr int AWhole = EqualPauses::Whole;
constexpr int AShort = EqualPauses::Short;

// What is remembered of waits in vain.
class AReadersWait : public testing::Test
{
protected:
    static int ReadInVain(const std::wstring& file)
    {
        ReadersPatience reader(NumberOfFile(file));
        return TriesInVain(reader);
    }

    static int WriteInVain(const std::wstring& file)
    {
        Patience writer(NumberOfFile(file));
        return TriesInVain(writer);
    }

    static void ReadInVainOften(int times)
    {
        for (int time = 0; time < times; ++time)
        {
            EXPECT_EQ(ReadInVain(L"held " + std::to_wstring(time)), AWhole) << time;
        }
    }

    const StoppedClock clock;

private:
    EqualPauses m_pauses;
};

TEST_F(AReadersWait, IsWholeForAFileThatNobodyHasWaitedFor)
{
    EXPECT_EQ(ReadInVain(L"held"), AWhole);
}

TEST_F(AReadersWait, IsShortForAFileThatWasWaitedForInVain)
{
    ReadInVain(L"held");

    EXPECT_EQ(ReadInVain(L"held"), AShort);
    EXPECT_EQ(ReadInVain(L"held"), AShort);
}

TEST_F(AReadersWait, IsWholeForOtherFiles)
{
    ReadInVain(L"held");

    EXPECT_EQ(ReadInVain(L"another"), AWhole);
}

TEST_F(AReadersWait, IsWholeAgainOnceAReaderHasOpenedTheFile)
{
    ReadInVain(L"held");

    ReadersPatience(NumberOfFile(L"held")).Opened();

    EXPECT_EQ(ReadInVain(L"held"), AWhole);
}

TEST_F(AReadersWait, IsWholeAgainOnceAWriterHasOpenedTheFile)
{
    ReadInVain(L"held");

    Patience(NumberOfFile(L"held")).Opened();

    EXPECT_EQ(ReadInVain(L"held"), AWhole);
}

TEST_F(AReadersWait, IsShortAlsoWhenAnotherFileWasOpened)
{
    ReadInVain(L"held");

    ReadersPatience(NumberOfFile(L"another")).Opened();

    EXPECT_EQ(ReadInVain(L"held"), AShort);
}

TEST_F(AReadersWait, IsWholeAgainASecondBehindTheLastLook)
{
    ReadInVain(L"held");
    clock.GoOn(999);
    EXPECT_EQ(ReadInVain(L"held"), AShort);
    clock.GoOn(999);
    EXPECT_EQ(ReadInVain(L"held"), AShort);

    clock.GoOn(1'000);

    EXPECT_EQ(ReadInVain(L"held"), AWhole);
}

TEST_F(AReadersWait, IsShortForAllFilesBehindFiveInVain)
{
    ReadInVainOften(5);

    EXPECT_EQ(ReadInVain(L"a sixth"), AShort);
    EXPECT_EQ(ReadInVain(L"a seventh"), AShort);
}

TEST_F(AReadersWait, IsWholeBehindFourInVain)
{
    ReadInVainOften(4);

    EXPECT_EQ(ReadInVain(L"a fifth"), AWhole);
}

TEST_F(AReadersWait, IsWholeAgainASecondBehindTheFirstOfFive)
{
    ReadInVainOften(1);
    clock.GoOn(600);
    for (const wchar_t* file : {L"a", L"b", L"c", L"d"})
    {
        EXPECT_EQ(ReadInVain(file), AWhole);
    }
    clock.GoOn(399);
    EXPECT_EQ(ReadInVain(L"e"), AShort);

    clock.GoOn(1);

    EXPECT_EQ(ReadInVain(L"e"), AWhole);
}

// Short waits aren't counted: a walk over many held files goes on in that way for the rest of the second
// alone.
TEST_F(AReadersWait, IsWholeAgainHoweverManyHaveBeenShort)
{
    ReadInVainOften(5);
    for (int time = 0; time < 10; ++time)
    {
        EXPECT_EQ(ReadInVain(L"many"), AShort);
    }

    clock.GoOn(1'000);

    EXPECT_EQ(ReadInVain(L"many"), AWhole);
}

TEST_F(AReadersWait, StaysAsItHasBegun)
{
    ReadersPatience waiting(NumberOfFile(L"held"));
    EXPECT_TRUE(waiting.IsWorthAnotherTry());
    ReadInVain(L"held");

    EXPECT_EQ(TriesInVain(waiting), AWhole - 1);
}

TEST_F(AReadersWait, IsNotShortenedByWriters)
{
    for (int time = 0; time < 6; ++time)
    {
        WriteInVain(L"held");
    }

    EXPECT_EQ(ReadInVain(L"held"), AWhole);
}

TEST_F(AReadersWait, IsOfNoConcernToWriters)
{
    ReadInVainOften(5);

    EXPECT_EQ(WriteInVain(L"held 0"), AWhole);
    EXPECT_EQ(WriteInVain(L"held 0"), AWhole);
}

} // namespace
} // namespace norvepa::test
