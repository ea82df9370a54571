#include "win/FileTurn.h"

#include "support/StoppedClock.h"
#include "support/TemporaryFolder.h"
#include "win/WholeFile.h"

#include <algorithm>
#include <atomic>
#include <gmock/gmock.h>
#include <optional>
#include <set>
#include <shared_mutex>
#include <thread>
#include <vector>

namespace norvepa::test
{
namespace
{

using win::NumberOfFile;
using win::TurnAt;

std::vector<win::FileNumber> NumbersOfAThousandFiles()
{
    std::vector<win::FileNumber> numbers;
    for (int file = 0; file < 1'000; ++file)
    {
        numbers.push_back(NumberOfFile(L"C:\\store\\" + std::to_wstring(file) + L".xml"));
    }
    return numbers;
}

TEST(AFileNumber, IsThatOfItsPath)
{
    EXPECT_EQ(NumberOfFile(L"a.xml"), NumberOfFile(std::wstring(L"a.xml")));
    EXPECT_NE(NumberOfFile(L"a.xml"), NumberOfFile(L"b.xml"));
}

TEST(AFileNumber, TellsFilesApart)
{
    const auto numbers = NumbersOfAThousandFiles();

    EXPECT_EQ(std::set(numbers.begin(), numbers.end()).size(), 1'000u);
}

TEST(AFileNumber, IsNeverZero)
{
    EXPECT_NE(NumberOfFile(L""), 0u);
    EXPECT_THAT(NumbersOfAThousandFiles(), testing::Each(testing::Ne(0u)));
}

TEST(AFilesTurn, IsTheSameForTheSameFile)
{
    EXPECT_EQ(&TurnAt(NumberOfFile(L"a.xml")), &TurnAt(NumberOfFile(L"a.xml")));
}

// A thousand files on 64 turns: none is anywhere near everybody's.
TEST(AFilesTurn, IsSharedByAFewFiles)
{
    std::multiset<win::SharedMutex*> turns;
    for (const win::FileNumber number : NumbersOfAThousandFiles())
    {
        turns.insert(&TurnAt(number));
    }

    EXPECT_EQ(std::set(turns.begin(), turns.end()).size(), 64u);
    EXPECT_TRUE(std::all_of(turns.begin(), turns.end(), [&](auto* turn) { return turns.count(turn) < 50; }));
}

class ReadersAndWritersOfAFile : public testing::Test
{
protected:
    StoppedClock clock;
    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

TEST_F(ReadersAndWritersOfAFile, AllGetTheirTurnHoweverManyReadWithoutPause)
{
    constexpr int writings = 150;
    WriteBytes(file, "0");
    std::atomic<int> failedReadings = 0;
    std::atomic<bool> isOver = false;
    std::vector<std::jthread> readers;
    for (int reader = 0; reader < 3; ++reader)
    {
        readers.emplace_back([&] {
            while (!isOver)
            {
                failedReadings += win::ReadWholeFile(file) ? 0 : 1;
            }
        });
    }

    int written = 0;
    for (int writing = 0; writing < writings; ++writing)
    {
        written += win::WriteWholeFile(file, std::to_string(writing), " ") ? 1 : 0;
    }
    isOver = true;
    readers.clear();

    EXPECT_EQ(written, writings);
    EXPECT_EQ(failedReadings, 0);
    EXPECT_EQ(ReadBytes(file), std::to_string(writings - 1));
}

TEST_F(ReadersAndWritersOfAFile, ReadItAtOnce)
{
    WriteBytes(file, "text");
    const win::FileToRead first(file);

    const win::FileToRead second(file);

    EXPECT_TRUE(first);
    EXPECT_TRUE(second);
}

// However long: nobody's patience is used up by one who has it open in this process.
TEST_F(ReadersAndWritersOfAFile, WaitForEachOther)
{
    WriteBytes(file, "old");
    std::optional<win::FileToRead> reader(std::in_place, file);
    std::atomic<bool> isWritten = false;
    std::jthread writer([&] { isWritten = win::WriteWholeFile(file, "new", " "); });
    SleepEx(100, FALSE);
    EXPECT_FALSE(isWritten);
    EXPECT_EQ(ReadBytes(file), "old");

    reader.reset();
    writer.join();

    EXPECT_TRUE(isWritten);
    EXPECT_EQ(ReadBytes(file), "new");
}

TEST_F(ReadersAndWritersOfAFile, LeaveTheirTurnWhenItCouldNotBeOpened)
{
    EXPECT_FALSE(win::FileToRead(file));
    EXPECT_FALSE(win::WriteWholeFile(folder / L"gone\\file.xml", "text", " "));

    EXPECT_TRUE(win::WriteWholeFile(file, "text", " "));
}

} // namespace
} // namespace norvepa::test
