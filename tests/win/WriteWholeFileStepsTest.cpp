#include "support/TemporaryFolder.h"
#include "win/FileCalls.h"
#include "win/WholeFile.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using win::WriteWholeFile;

constexpr std::string_view Blank = " ";

// What stands on the disk at any moment of a writing, and when the system itself fails.
class WritingAFile : public testing::Test
{
protected:
    // As whoever takes a part in the work sees it, whatever the writer lets in.
    [[nodiscard]] DWORD Size() const
    {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        EXPECT_TRUE(GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data));
        return data.nFileSizeLow;
    }

    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

TEST_F(WritingAFile, PutsAllBytesThereAtOnceAndCutsBehindThem)
{
    WriteBytes(file, "12345678");
    FileCalls calls;

    EXPECT_TRUE(WriteWholeFile(file, "short", Blank));

    EXPECT_THAT(calls.told, ElementsAre("write 8", "cut 5", "flush"));
}

TEST_F(WritingAFile, PutsALongerTextThereAtOnce)
{
    WriteBytes(file, "123");
    FileCalls calls;

    EXPECT_TRUE(WriteWholeFile(file, "longer", Blank));

    EXPECT_THAT(calls.told, ElementsAre("write 6", "cut 6", "flush"));
}

TEST_F(WritingAFile, DoesNotEmptyItFirst)
{
    WriteBytes(file, "12345678");
    FileCalls calls;
    calls.beforeWrite = [&] { EXPECT_EQ(Size(), 8u); };
    calls.beforeCut = [&] { EXPECT_EQ(Size(), 8u); };

    EXPECT_TRUE(WriteWholeFile(file, "short", Blank));

    EXPECT_EQ(ReadBytes(file), "short");
}

TEST_F(WritingAFile, LeavesBlanksAtWorst)
{
    WriteBytes(file, "12345678");
    FileCalls calls;
    calls.cutsFail = true;

    EXPECT_TRUE(WriteWholeFile(file, "short", Blank));

    EXPECT_EQ(ReadBytes(file), "short   ");
}

TEST_F(WritingAFile, LeavesWholeBlanksOfItsEncodingAtWorst)
{
    WriteBytes(file, "12345678");
    FileCalls calls;
    calls.cutsFail = true;

    EXPECT_TRUE(WriteWholeFile(file, std::string_view("a\0b\0", 4), std::string_view(" \0", 2)));

    EXPECT_EQ(ReadBytes(file), std::string_view("a\0b\0 \0 \0", 8));
}

TEST_F(WritingAFile, LeavesTheOldContentWhenTheDiskTakesAPart)
{
    WriteBytes(file, "old text");
    FileCalls calls;
    calls.roomForNextWrite = 10;

    EXPECT_FALSE(WriteWholeFile(file, "a text that is longer", Blank));

    EXPECT_EQ(ReadBytes(file), "old text");
}

TEST_F(WritingAFile, LeavesTheOldContentWhenTheDiskTakesAPartOfAShorterText)
{
    WriteBytes(file, "a long old text");
    FileCalls calls;
    calls.roomForNextWrite = 2;

    EXPECT_FALSE(WriteWholeFile(file, "short", Blank));

    EXPECT_EQ(ReadBytes(file), "a long old text");
}

TEST_F(WritingAFile, LeavesTheOldContentWhenTheDiskTakesNothing)
{
    WriteBytes(file, "old text");
    FileCalls calls;
    calls.nextWriteFails = true;

    EXPECT_FALSE(WriteWholeFile(file, "a text that is longer", Blank));

    EXPECT_EQ(ReadBytes(file), "old text");
}

TEST_F(WritingAFile, LeavesAnEmptyFileEmptyWhenTheDiskTakesAPart)
{
    WriteBytes(file, "");
    FileCalls calls;
    calls.roomForNextWrite = 2;

    EXPECT_FALSE(WriteWholeFile(file, "text", Blank));

    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(WritingAFile, LeavesNothingOfANewFileWhenTheDiskTakesAPart)
{
    FileCalls calls;
    calls.roomForNextWrite = 2;

    EXPECT_FALSE(WriteWholeFile(file, "text", Blank));

    EXPECT_THAT(FileNames(folder.path()), IsEmpty());
}

TEST_F(WritingAFile, ShowsNothingOfANewFileBeforeItIsWhole)
{
    FileCalls calls;
    calls.beforeMove = [&] { EXPECT_FALSE(Exists(file)); };

    EXPECT_TRUE(WriteWholeFile(file, "text", Blank));

    EXPECT_THAT(calls.told, ElementsAre("write 4", "flush", "move"));
}

TEST_F(WritingAFile, ReachesTheDiskWhileOthersReadAndWriteItAlready)
{
    WriteBytes(file, "old");
    FileCalls calls;
    bool isFlushed = false;
    calls.beforeFlush = [&](HANDLE flushed) {
        std::wstring path(MAX_PATH, L'\0');
        path.resize(GetFinalPathNameByHandleW(flushed, path.data(), MAX_PATH, 0));
        EXPECT_THAT(path, testing::EndsWith(L"\\file.xml"));
        EXPECT_EQ(ReadBytes(file), "new");
        calls.beforeFlush = [](HANDLE /*file*/) {};
        EXPECT_TRUE(WriteWholeFile(file, "newer", Blank));
        isFlushed = true;
    };

    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_TRUE(isFlushed);
    EXPECT_EQ(ReadBytes(file), "newer");
}

BOOL WINAPI TellNoSize(HANDLE /*file*/, LARGE_INTEGER* /*size*/)
{
    return FALSE;
}

BOOL WINAPI ReadNothing(HANDLE /*file*/, void* /*bytes*/, DWORD /*size*/, DWORD* /*read*/,
                        OVERLAPPED* /*place*/)
{
    SetLastError(ERROR_CRC);
    return FALSE;
}

// What can't be put back isn't written over.
TEST_F(WritingAFile, DoesNotBeginWhenTheOldContentCanNotBeHad)
{
    WriteBytes(file, "old");
    FileCalls calls;

    {
        const ImportHook size("GetFileSizeEx", TellNoSize);
        EXPECT_FALSE(WriteWholeFile(file, "new text", Blank));
    }
    {
        const ImportHook reading("ReadFile", ReadNothing);
        EXPECT_FALSE(WriteWholeFile(file, "new text", Blank));
    }

    EXPECT_THAT(calls.told, testing::Not(testing::Contains(StartsWith("write"))));
    EXPECT_EQ(ReadBytes(file), "old");
}

TEST_F(WritingAFile, IsNotReadWhenItsContentCanNotBeHad)
{
    WriteBytes(file, "text");

    {
        const ImportHook size("GetFileSizeEx", TellNoSize);
        EXPECT_EQ(win::ReadWholeFile(file), std::nullopt);
    }
    const ImportHook reading("ReadFile", ReadNothing);
    EXPECT_EQ(win::ReadWholeFile(file), std::nullopt);
}

} // namespace
} // namespace norvepa::test
