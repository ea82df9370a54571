#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"
#include "win/FileCalls.h"
#include "win/NewFile.h"
#include "win/WholeFile.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using win::NewFile;

constexpr DWORD Everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class AFileMadeInPlace : public testing::Test
{
protected:
    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

TEST_F(AFileMadeInPlace, IsThereAtOnce)
{
    const NewFile made = NewFile::CreateOrEmpty(file);

    EXPECT_TRUE(made);
    EXPECT_TRUE(Exists(file));
}

TEST_F(AFileMadeInPlace, IsOpenForNobodyElseUntilItIsKept)
{
    NewFile made = NewFile::CreateOrEmpty(file);
    EXPECT_THROW(OpenFile(file, Everybody), std::runtime_error);
    EXPECT_EQ(win::ReadWholeFile(file), std::nullopt);
    EXPECT_FALSE(win::WriteWholeFile(file, "a stranger's", " "));
    EXPECT_FALSE(DeleteFileW(file.c_str()));

    EXPECT_TRUE(made.Keep());

    EXPECT_NO_THROW(OpenFile(file, Everybody));
    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(AFileMadeInPlace, MayBeKeptEmpty)
{
    EXPECT_TRUE(NewFile::CreateOrEmpty(file).Keep());

    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(AFileMadeInPlace, HoldsWhatWasWritten)
{
    NewFile made = NewFile::CreateOrEmpty(file);
    EXPECT_TRUE(made.Write("one, "));
    EXPECT_TRUE(made.Write("two"));

    EXPECT_TRUE(made.Keep());

    EXPECT_EQ(ReadBytes(file), "one, two");
}

TEST_F(AFileMadeInPlace, MayBeEmptiedAgain)
{
    NewFile made = NewFile::CreateOrEmpty(file);
    EXPECT_TRUE(made.Write("bytes"));

    made.Empty();
    EXPECT_TRUE(made.Keep());

    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(AFileMadeInPlace, IsGoneWhenItIsNotKept)
{
    static_cast<void>(NewFile::CreateOrEmpty(file).Write("bytes"));

    EXPECT_THAT(FileNames(folder.path()), IsEmpty());
}

TEST_F(AFileMadeInPlace, HasNothingOfWhatWasThere)
{
    WriteBytes(file, "old");

    NewFile made = NewFile::CreateOrEmpty(file);
    EXPECT_TRUE(made.Keep());

    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(AFileMadeInPlace, LeavesAFileThatIsInUse)
{
    WriteBytes(file, "old");
    const OpenFile reader(file);

    const NewFile made = NewFile::CreateOrEmpty(file);

    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    EXPECT_FALSE(made);
    EXPECT_EQ(ReadBytes(file), "old");
}

TEST_F(AFileMadeInPlace, IsNotMadeWithoutItsFolder)
{
    const std::wstring nowhere = folder / L"gone\\file.xml";

    EXPECT_FALSE(NewFile::CreateOrEmpty(nowhere));

    EXPECT_THAT(FileNames(folder.path()), IsEmpty());
}

TEST_F(AFileMadeInPlace, ReachesTheDiskWhileOthersReadItAlready)
{
    FileCalls calls;
    calls.beforeFlush = [&](HANDLE flushed) {
        EXPECT_NE(flushed, INVALID_HANDLE_VALUE);
        EXPECT_EQ(ReadBytes(file), "bytes");
    };
    NewFile made = NewFile::CreateOrEmpty(file);
    EXPECT_TRUE(made.Write("bytes"));

    EXPECT_TRUE(made.Keep());

    EXPECT_THAT(calls.told, ElementsAre("write 5", "flush"));
}

} // namespace
} // namespace norvepa::test
