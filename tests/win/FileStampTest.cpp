#include "win/FileStamp.h"

#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"
#include "win/Handle.h"

#include <gtest/gtest.h>

namespace norvepa::test
{
namespace
{

using win::FileStamp;

class FileStamps : public testing::Test
{
protected:
    FileStamps() { WriteBytes(file, "one"); }

    // Until the clock has gone on: what is written then is written later.
    static void WaitForTheClock()
    {
        FILETIME begin;
        FILETIME now;
        GetSystemTimePreciseAsFileTime(&begin);
        do
        {
            Sleep(20);
            GetSystemTimePreciseAsFileTime(&now);
        } while (CompareFileTime(&now, &begin) <= 0);
    }

    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

std::wstring FileOfTheSystem()
{
    std::wstring folder(MAX_PATH, L'\0');
    folder.resize(GetSystemDirectoryW(folder.data(), MAX_PATH));
    return folder + L"\\kernel32.dll";
}

void CopyWithTimes(const std::wstring& from, const std::wstring& to)
{
    if (!CopyFileW(from.c_str(), to.c_str(), FALSE))
    {
        throw std::runtime_error("not copied");
    }
}

TEST_F(FileStamps, AreEqualForAFileThatIsLeftAlone)
{
    const auto before = FileStamp::Of(file);

    EXPECT_TRUE(before);
    EXPECT_EQ(FileStamp::Of(file) == before, true);
}

TEST_F(FileStamps, DifferForAnotherSize)
{
    const auto before = FileStamp::Of(file);

    WriteBytes(file, "three");

    EXPECT_EQ(FileStamp::Of(file) == before, false);
}

TEST_F(FileStamps, DifferForOtherBytesOfTheSameSizeOnceTheClockHasGoneOn)
{
    const auto before = FileStamp::Of(file);
    WaitForTheClock();

    WriteBytes(file, "two");

    EXPECT_EQ(FileStamp::Of(file) == before, false);
}

TEST_F(FileStamps, DifferForACopyThatBringsItsWriteTimeAlong)
{
    const std::wstring other = folder / L"other.xml";
    CopyWithTimes(file, other);
    WaitForTheClock();
    const auto before = FileStamp::Of(file);
    WriteBytes(other, "two");
    WaitForTheClock();

    CopyWithTimes(other, file);

    EXPECT_EQ(FileStamp::Of(file) == before, false);
}

TEST_F(FileStamps, AreNotCertainForAFileThatWasJustWritten)
{
    EXPECT_FALSE(FileStamp::Of(file)->IsCertain());
}

TEST_F(FileStamps, AreCertainForAFileThatWasWrittenLongAgo)
{
    EXPECT_TRUE(FileStamp::Of(FileOfTheSystem())->IsCertain());
}

TEST_F(FileStamps, AreNoneForAFileThatIsNotThere)
{
    EXPECT_FALSE(FileStamp::Of(folder / L"missing.xml"));
    EXPECT_FALSE(FileStamp::Of(folder.path()));
}

TEST_F(FileStamps, AreNoneForAFileThatSomebodyKeepsToHimself)
{
    const OpenFile reader(file, 0);

    EXPECT_FALSE(FileStamp::Of(file));
}

TEST_F(FileStamps, AreThereForAFileThatOthersReadOrWrite)
{
    const OpenFile reader(file);
    const std::wstring written = folder / L"written.xml";
    const win::Handle writer(CreateFileW(written.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                         FILE_ATTRIBUTE_NORMAL, nullptr));

    EXPECT_TRUE(FileStamp::Of(file));
    EXPECT_TRUE(FileStamp::Of(written));
}

TEST_F(FileStamps, AreThoseOfTheFileWhenTheyAreTakenOfAnOpenOne)
{
    const win::Handle handle(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                         FILE_ATTRIBUTE_NORMAL, nullptr));

    const auto stamp = FileStamp::Of(handle.get());

    EXPECT_TRUE(stamp == FileStamp::Of(file));
    EXPECT_EQ(stamp->size(), 3);
}

TEST_F(FileStamps, AreNoneWhenTheSystemDoesNotTell)
{
    EXPECT_FALSE(FileStamp::Of(static_cast<HANDLE>(nullptr)));
}

LARGE_INTEGER Number(std::int64_t number)
{
    LARGE_INTEGER large;
    large.QuadPart = number;
    return large;
}

TEST_F(FileStamps, DifferInSizeWriteTimeOrChangeTime)
{
    const FileStamp stamp(Number(1), Number(2), Number(3));

    EXPECT_TRUE(stamp == FileStamp(Number(1), Number(2), Number(3)));
    EXPECT_FALSE(stamp == FileStamp(Number(9), Number(2), Number(3)));
    EXPECT_FALSE(stamp == FileStamp(Number(1), Number(9), Number(3)));
    EXPECT_FALSE(stamp == FileStamp(Number(1), Number(2), Number(9)));
}

// A file is as old as the later of its two times.
TEST_F(FileStamps, AreCertainWhenBothTimesLieTwoSecondsBack)
{
    constexpr std::int64_t second = 10'000'000;
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    const std::int64_t now = std::int64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
    const auto isCertain = [](std::int64_t written, std::int64_t changed) {
        return FileStamp(Number(1), Number(written), Number(changed)).IsCertain();
    };

    EXPECT_TRUE(isCertain(now - 2 * second, now - 2 * second));
    EXPECT_TRUE(isCertain(now - 9 * second, now - 3 * second));
    EXPECT_FALSE(isCertain(now - 9 * second, now));
    EXPECT_FALSE(isCertain(now, now - 9 * second));
    EXPECT_FALSE(isCertain(now + 9 * second, now - 9 * second));
}

TEST_F(FileStamps, AreNeverCertainWhereNoChangeTimesAreKept)
{
    EXPECT_FALSE(FileStamp(Number(1), Number(2), Number(0)).IsCertain());
}

} // namespace
} // namespace norvepa::test
