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

std::wstring ThisProgram()
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path;
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
    EXPECT_TRUE(FileStamp::Of(ThisProgram())->IsCertain());
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

} // namespace
} // namespace norvepa::test
