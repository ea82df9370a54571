#include "store/FileSteps.h"
#include "store/FileStepsScene.h"
#include "support/AtNextPause.h"
#include "support/ImportHook.h"
#include "support/OpenFile.h"
#include "support/SystemFunction.h"
#include "win/WholeFile.h"

#include <windows.h>

#include <atomic>
#include <optional>
#include <thread>

namespace norvepa::test
{
namespace
{

class ReplacingTest : public FileStepsScene
{
protected:
    void GivenBoth() const
    {
        WriteBytes(m_sourceFile, "new");
        WriteBytes(m_destinationFile, "old");
    }

    [[nodiscard]] Result Replace() const { return Replacing(m_source.c_str(), m_destination.c_str()).Run(); }

    void ExpectBothAsBefore() const
    {
        EXPECT_EQ(ReadBytes(m_sourceFile), "new");
        EXPECT_EQ(ReadBytes(m_destinationFile), "old");
    }
};

TEST_F(ReplacingTest, HappensWhenItRunsAndNotBefore)
{
    GivenBoth();

    const Replacing replacing(m_source.c_str(), m_destination.c_str());
    ExpectBothAsBefore();

    EXPECT_EQ(replacing.Run(), PGSP_OK);
    EXPECT_EQ(ReadBytes(m_destinationFile), "new");
    EXPECT_FALSE(Exists(m_sourceFile));
}

TEST_F(ReplacingTest, LeavesAFileInTheDestinationsPlaceAtEveryMoment)
{
    constexpr int replacements = 200;
    WriteBytes(m_destinationFile, "old");
    std::atomic<bool> isOver = false;
    std::atomic<int> looks = 0;
    std::atomic<int> misses = 0;
    std::jthread watcher([&] {
        while (!isOver)
        {
            ++looks;
            misses += Exists(m_destinationFile) ? 0 : 1;
        }
    });

    for (int replacement = 0; replacement < replacements; ++replacement)
    {
        WriteBytes(m_sourceFile, std::to_string(replacement));
        EXPECT_EQ(Replace(), PGSP_OK);
    }
    isOver = true;
    watcher.join();

    EXPECT_GT(looks, 0);
    EXPECT_EQ(misses, 0);
    EXPECT_EQ(ReadBytes(m_destinationFile), std::to_string(replacements - 1));
}

TEST_F(ReplacingTest, AndReadingDoNotKeepEachOtherOut)
{
    constexpr int replacements = 200;
    WriteBytes(m_destinationFile, "text");
    std::atomic<bool> isOver = false;
    std::atomic<int> failures = 0;
    std::jthread reader([&] {
        while (!isOver)
        {
            failures += win::ReadWholeFile(m_destinationFile) == "text" ? 0 : 1;
        }
    });

    for (int replacement = 0; replacement < replacements; ++replacement)
    {
        WriteBytes(m_sourceFile, "text");
        EXPECT_EQ(Replace(), PGSP_OK);
    }
    isOver = true;
    reader.join();

    EXPECT_EQ(failures, 0);
}

TEST_F(ReplacingTest, HasADestination)
{
    WriteBytes(m_sourceFile, "new");

    EXPECT_EQ(Replace(), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(ReadBytes(m_sourceFile), "new");
    EXPECT_FALSE(Exists(m_destinationFile));
}

TEST_F(ReplacingTest, HasASource)
{
    WriteBytes(m_destinationFile, "old");

    EXPECT_EQ(Replace(), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_EQ(ReadBytes(m_destinationFile), "old");
}

TEST_F(ReplacingTest, LeavesADestinationThatMayOnlyBeRead)
{
    GivenBoth();
    SetFileAttributesW(m_destinationFile.c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Replace(), PGSP_ERR_CANT_DELETE_FILE);

    ExpectBothAsBefore();
    SetFileAttributesW(m_destinationFile.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(ReplacingTest, LeavesADestinationThatIsHeld)
{
    GivenBoth();
    const OpenFile holder(m_destinationFile);

    EXPECT_EQ(Replace(), PGSP_ERR_CANT_DELETE_FILE);

    ExpectBothAsBefore();
}

TEST_F(ReplacingTest, LeavesADestinationThatIsAFolder)
{
    WriteBytes(m_sourceFile, "new");
    MakeFolders(m_destinationFile);

    EXPECT_EQ(Replace(), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(ReadBytes(m_sourceFile), "new");
    EXPECT_TRUE(Exists(m_destinationFile));
}

TEST_F(ReplacingTest, LeavesBothWhenItsSourceIsHeld)
{
    GivenBoth();
    const OpenFile holder(m_sourceFile);

    EXPECT_EQ(Replace(), PGSP_ERR_CANT_COPY_FILE);

    ExpectBothAsBefore();
}

TEST_F(ReplacingTest, HappensOnceItsDestinationIsFree)
{
    GivenBoth();
    std::optional<OpenFile> holder(std::in_place, m_destinationFile);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_EQ(Replace(), PGSP_OK);

    EXPECT_TRUE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(m_destinationFile), "new");
}

TEST_F(ReplacingTest, HappensOnceItsSourceIsFree)
{
    GivenBoth();
    std::optional<OpenFile> holder(std::in_place, m_sourceFile);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_EQ(Replace(), PGSP_OK);

    EXPECT_TRUE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(m_destinationFile), "new");
}

// A holder who comes when the destination has been looked at already.
std::optional<OpenFile> lateHolder;
DWORD howMoved = 0;

BOOL WINAPI HoldAndMove(const wchar_t* from, const wchar_t* to, DWORD how)
{
    static auto* const move = SystemFunction<decltype(MoveFileExW)>("MoveFileExW");
    howMoved = how;
    if (!lateHolder)
    {
        lateHolder.emplace(to);
    }
    return move(from, to, how);
}

TEST_F(ReplacingTest, LeavesADestinationThatSomebodyTakesHoldOfMeanwhile)
{
    GivenBoth();
    const ImportHook move("MoveFileExW", HoldAndMove);

    EXPECT_EQ(Replace(), PGSP_ERR_CANT_DELETE_FILE);

    ExpectBothAsBefore();
    lateHolder.reset();
}

TEST_F(ReplacingTest, LiesOnTheDiskWhenItIsDone)
{
    GivenBoth();
    lateHolder.emplace(m_sourceFile, FILE_SHARE_READ | FILE_SHARE_DELETE);
    const ImportHook move("MoveFileExW", HoldAndMove);

    EXPECT_EQ(Replace(), PGSP_OK);

    EXPECT_TRUE(howMoved & MOVEFILE_WRITE_THROUGH);
    lateHolder.reset();
}

} // namespace
} // namespace norvepa::test
