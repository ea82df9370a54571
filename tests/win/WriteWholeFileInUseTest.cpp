#include "support/AllAtOnce.h"
#include "support/AtNextPause.h"
#include "support/FileWriter.h"
#include "support/ImportHook.h"
#include "support/OpenFile.h"
#include "support/StoppedClock.h"
#include "support/SystemFunction.h"
#include "support/TemporaryFolder.h"
#include "win/WholeFile.h"

#include <windows.h>

#include <atomic>
#include <chrono>
#include <gmock/gmock.h>
#include <optional>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::Optional;
using win::ReadWholeFile;
using win::WriteWholeFile;

constexpr std::string_view Blank = " ";
constexpr DWORD Everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class FileInUse : public testing::Test
{
protected:
    // Far above how long anybody waits, for a machine that is busy.
    static constexpr std::chrono::milliseconds notLong{500};

    [[nodiscard]] std::chrono::steady_clock::duration Elapsed() const
    {
        return std::chrono::steady_clock::now() - begin;
    }

    StoppedClock clock;
    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
    const std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
};

TEST_F(FileInUse, IsNotWrittenWhileAStrangerReadsItAndKeepsWritersOut)
{
    WriteBytes(file, "old");
    const OpenFile stranger(file);

    EXPECT_FALSE(WriteWholeFile(file, "new", Blank));

    EXPECT_LT(Elapsed(), notLong);
    EXPECT_EQ(ReadBytes(file), "old");
}

TEST_F(FileInUse, IsNotWrittenWhileAStrangerKeepsItToHimself)
{
    WriteBytes(file, "old");
    {
        const OpenFile stranger(file, 0);

        EXPECT_FALSE(WriteWholeFile(file, "new", Blank));
    }

    EXPECT_LT(Elapsed(), notLong);
    EXPECT_EQ(ReadBytes(file), "old");
}

// He could meet the half of it.
TEST_F(FileInUse, IsNotWrittenUnderAReader)
{
    WriteBytes(file, "old");
    const OpenFile reader(file, Everybody);

    EXPECT_FALSE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(ReadBytes(file), "old");
}

TEST_F(FileInUse, IsWrittenOnceItsReaderHasGone)
{
    WriteBytes(file, "old");
    std::optional<OpenFile> reader(std::in_place, file);
    const AtNextPause pause([&] { reader.reset(); });

    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_TRUE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(file), "new");
}

TEST_F(FileInUse, IsReadOnceItsHolderHasGone)
{
    WriteBytes(file, "text");
    std::optional<OpenFile> holder(std::in_place, file, 0);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_THAT(ReadWholeFile(file), Optional(std::string("text")));

    EXPECT_TRUE(pause.hasBeen());
}

TEST_F(FileInUse, SaysThatItIsInUse)
{
    WriteBytes(file, "text");
    const OpenFile holder(file, 0);

    const win::FileToRead reader(file);

    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    EXPECT_FALSE(reader);
}

TEST_F(FileInUse, IsNotRemovedUnderItsReader)
{
    WriteBytes(file, "text");
    const win::FileToRead reader(file);

    EXPECT_FALSE(DeleteFileW(file.c_str()));

    EXPECT_TRUE(Exists(file));
}

TEST_F(FileInUse, TellsWhetherSomebodyWritesIt)
{
    WriteBytes(file, "text");
    const OpenFile anotherReader(file, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_FALSE(win::FileToRead(file).isWrittenTo());

    const FileWriter writer(file);

    EXPECT_TRUE(win::FileToRead(file).isWrittenTo());
}

TEST_F(FileInUse, HasNoNewWriterWhileItIsRead)
{
    WriteBytes(file, "text");
    const win::FileToRead reader(file);

    EXPECT_THROW(FileWriter{file}, std::runtime_error);
}

TEST_F(FileInUse, IsNotWaitedForWhenItIsNotThere)
{
    const AtNextPause pause([] {});

    EXPECT_EQ(ReadWholeFile(file), std::nullopt);

    EXPECT_FALSE(pause.hasBeen());
}

// Whoever is about to make the same file, and has been faster.
std::wstring placeOfTheOther;

DWORD WINAPI LookTooEarly(const wchar_t* path)
{
    static auto* const look = SystemFunction<decltype(GetFileAttributesW)>("GetFileAttributesW");
    const DWORD attributes = look(path);
    if (path == placeOfTheOther && attributes == INVALID_FILE_ATTRIBUTES)
    {
        WriteBytes(placeOfTheOther, "the other's, which is longer");
    }
    SetLastError(ERROR_FILE_NOT_FOUND);
    return attributes;
}

TEST_F(FileInUse, IsWrittenAlsoWhenAnotherIsFasterToMakeIt)
{
    placeOfTheOther = file;
    const ImportHook look("GetFileAttributesW", LookTooEarly);

    EXPECT_TRUE(WriteWholeFile(file, "ours", Blank));

    EXPECT_EQ(ReadBytes(file), "ours");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"file.xml"));
}

// One that is there whenever it is made, and gone when it is opened.
DWORD WINAPI LookAtTheWrongMoment(const wchar_t* /*path*/)
{
    return FILE_ATTRIBUTE_NORMAL;
}

TEST_F(FileInUse, IsGivenUpWhenOthersKeepTakingItAway)
{
    {
        const ImportHook look("GetFileAttributesW", LookAtTheWrongMoment);

        EXPECT_FALSE(WriteWholeFile(file, "ours", Blank));
    }

    EXPECT_THAT(FileNames(folder.path()), testing::IsEmpty());
}

TEST_F(FileInUse, IsWholeWhoeverOfManyMakesIt)
{
    constexpr int writers = 3;
    constexpr int rounds = 30;
    for (int round = 0; round < rounds; ++round)
    {
        const std::wstring made = folder / (L"made" + std::to_wstring(round) + L".xml");

        std::atomic<int> written = 0;
        AllAtOnce(writers, [&](int writer) {
            const std::string text(1'000, static_cast<char>('a' + writer));
            written += WriteWholeFile(made, text, Blank) ? 1 : 0;
        });

        const std::string bytes = ReadBytes(made);
        EXPECT_EQ(written, writers);
        EXPECT_EQ(bytes, std::string(1'000, bytes.front()));
    }
    EXPECT_THAT(FileNames(folder.path()), testing::SizeIs(rounds));
}

} // namespace
} // namespace norvepa::test
