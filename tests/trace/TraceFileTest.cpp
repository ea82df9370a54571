#include "trace/TraceFile.h"

#include "TraceScene.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <string>

namespace norvepa
{

namespace
{

using test::Exists;
using test::ReadBytes;
using test::WriteBytes;

constexpr std::int64_t Limit = 10;
const std::string within(10, 'w');
const std::string over(11, 'o');

class TraceFileTest : public testing::Test
{
protected:
    void Write(const std::string& line) { m_file.Write(base(), Limit, line); }
    void Choose() { m_file.Choose(base()); }
    [[nodiscard]] int number() const { return m_file.number(); }

    [[nodiscard]] std::string base() const { return test::ToUtf8(m_folder / L"trace"); }
    [[nodiscard]] std::wstring path(int number) const
    {
        return m_folder / (L"trace" + std::to_wstring(number) + L".TRC");
    }
    [[nodiscard]] std::string content(int number) const { return ReadBytes(path(number)); }

    // `age` in seconds.
    void WriteAged(int number, const std::string& bytes, int age) const
    {
        WriteBytes(path(number), bytes);
        constexpr std::uint64_t ticksPerSecond = 10'000'000;
        const std::uint64_t time = 132'000'000'000'000'000 - static_cast<std::uint64_t>(age) * ticksPerSecond;
        const FILETIME modified{static_cast<DWORD>(time), static_cast<DWORD>(time >> 32)};
        const HANDLE file = CreateFileW(path(number).c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
        EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &modified));
        CloseHandle(file);
    }

    [[nodiscard]] const test::TemporaryFolder& folder() const { return m_folder; }

private:
    test::TemporaryFolder m_folder;
    TraceFile m_file;
};

TEST_F(TraceFileTest, FirstFileIsChosenWhenThereIsNone)
{
    Choose();

    EXPECT_EQ(number(), 1);
    EXPECT_FALSE(Exists(path(1)) || Exists(path(2)));
}

TEST_F(TraceFileTest, FirstFileIsChosenWhenTheSecondIsMissing)
{
    WriteBytes(path(1), "");
    Choose();

    EXPECT_EQ(number(), 1);
}

TEST_F(TraceFileTest, SecondFileIsChosenWhenOnlyTheFirstIsMissing)
{
    WriteBytes(path(2), "");
    Choose();

    EXPECT_EQ(number(), 2);
}

TEST_F(TraceFileTest, NewerFileIsChosen)
{
    WriteAged(1, "", 0);
    WriteAged(2, "", 60);
    Choose();
    EXPECT_EQ(number(), 1);

    WriteAged(1, "", 60);
    WriteAged(2, "", 0);
    Choose();
    EXPECT_EQ(number(), 2);
}

TEST_F(TraceFileTest, FirstOfTwoEquallyOldFilesIsChosen)
{
    WriteAged(1, "", 60);
    WriteAged(2, "", 60);
    Choose();

    EXPECT_EQ(number(), 1);
}

TEST_F(TraceFileTest, LineEndsInALineFeedAlone)
{
    Write("line");

    EXPECT_EQ(content(1), "line\n");
}

TEST_F(TraceFileTest, LinesAreAppended)
{
    WriteBytes(path(1), "old\n");

    Write("a");
    Write("b");

    EXPECT_EQ(content(1), "old\na\nb\n");
    EXPECT_EQ(number(), 1);
}

TEST_F(TraceFileTest, FileAtTheLimitIsStillUsed)
{
    WriteBytes(path(1), within);

    Write("x");

    EXPECT_EQ(content(1), within + "x\n");
}

TEST_F(TraceFileTest, FileOverTheLimitMakesTheOtherOneTheCurrent)
{
    WriteBytes(path(1), over);

    Write("x");

    EXPECT_EQ(content(1), over);
    EXPECT_EQ(content(2), "x\n");
    EXPECT_EQ(number(), 2);
}

TEST_F(TraceFileTest, WithBothOverTheLimitTheFirstTriedStartsAnew)
{
    WriteBytes(path(1), over);
    WriteBytes(path(2), over);

    Write("x");

    EXPECT_EQ(content(1), "x\n");
    EXPECT_EQ(content(2), over);
    EXPECT_EQ(number(), 1);
}

TEST_F(TraceFileTest, LineThatReachesTheLimitKeepsItsFileTheCurrent)
{
    Write("123456789");

    EXPECT_EQ(content(1).size(), 10u);
    EXPECT_EQ(number(), 1);
}

TEST_F(TraceFileTest, LineThatPassesTheLimitMakesTheOtherFileTheCurrent)
{
    Write("1234567890");
    EXPECT_EQ(number(), 2);

    Write("x");
    EXPECT_EQ(content(1), "1234567890\n");
    EXPECT_EQ(content(2), "x\n");
}

TEST_F(TraceFileTest, AfterPassingTheLimitTheOtherFileIsKeptWhileItHasRoom)
{
    WriteBytes(path(2), within);

    Write("1234567890");

    EXPECT_EQ(number(), 2);
    EXPECT_EQ(content(2), within);
}

TEST_F(TraceFileTest, AfterPassingTheLimitTheOtherFileIsDeletedWhenItHasNone)
{
    WriteBytes(path(2), over);

    Write("1234567890");

    EXPECT_EQ(number(), 2);
    EXPECT_FALSE(Exists(path(2)));
}

TEST_F(TraceFileTest, AfterPassingTheLimitTheOtherFileIsMadeWhenItIsMissing)
{
    Write("1234567890");

    ASSERT_TRUE(Exists(path(2)));
    EXPECT_EQ(content(2), "");
}

TEST_F(TraceFileTest, FilesAlternateForEver)
{
    for (const std::string line : {"1111111111", "2222222222", "3333333333", "4444444444", "5555555555"})
    {
        Write(line);
    }

    EXPECT_EQ(content(1), "5555555555\n");
    EXPECT_FALSE(Exists(path(2)));
    EXPECT_EQ(number(), 2);
}

TEST_F(TraceFileTest, FileIsClosedBehindEachLine)
{
    Write("line");

    EXPECT_TRUE(DeleteFileW(path(1).c_str()));
    EXPECT_FALSE(Exists(path(1)));
}

TEST_F(TraceFileTest, LineIsLostWhenTheFileCannotBeOpened)
{
    test::MakeFolders(path(1));

    Write("line");

    EXPECT_EQ(number(), 1);
    EXPECT_FALSE(Exists(path(2)));
}

TEST_F(TraceFileTest, LineIsLostWhenTheOtherFileCannotBeOpened)
{
    WriteBytes(path(1), over);
    test::MakeFolders(path(2));

    Write("line");

    EXPECT_EQ(content(1), over);
    EXPECT_EQ(number(), 2);
}

TEST_F(TraceFileTest, FileThatCannotBeDeletedIsWrittenAllTheSame)
{
    WriteBytes(path(1), over);
    WriteBytes(path(2), over);
    const HANDLE reader = CreateFileW(path(1).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);

    Write("x");

    CloseHandle(reader);
    EXPECT_EQ(content(1), over + "x\n");
}

TEST_F(TraceFileTest, FileThatAnotherProgramHasOpenForWritingIsWrittenBesideIt)
{
    WriteBytes(path(1), "");
    const HANDLE writer = CreateFileW(path(1).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);

    Write("x");

    CloseHandle(writer);
    EXPECT_EQ(content(1), "x\n");
}

TEST_F(TraceFileTest, PercentSignsOfTheBaseNameStandForThemselves)
{
    const std::string oddBase = test::ToUtf8(folder() / L"100%s%d%n");
    TraceFile file;

    file.Write(oddBase, Limit, "line");

    EXPECT_EQ(ReadBytes(folder() / L"100%s%d%n1.TRC"), "line\n");
}

TEST_F(TraceFileTest, BaseNameWithADoubledBackslashNamesTheSameFile)
{
    TraceFile file;

    file.Write(test::ToUtf8(folder().path()) + "\\\\trace", Limit, "line");

    EXPECT_EQ(content(1), "line\n");
}

} // namespace

} // namespace norvepa
