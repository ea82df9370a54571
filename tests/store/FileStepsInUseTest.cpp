#include "store/FileSteps.h"
#include "store/FileStepsScene.h"
#include "support/AtNextPause.h"
#include "support/OpenFile.h"
#include "support/StoppedClock.h"

#include <windows.h>

#include <chrono>
#include <optional>

namespace norvepa::test
{
namespace
{

// Steps on a file that somebody has open: until he lets go of it, or for good.
class FileStepsInUse : public FileStepsScene
{
protected:
    FileStepsInUse() { WriteBytes(m_sourceFile, "bytes"); }

    [[nodiscard]] Result Delete() const { return Deletion(m_source.c_str()).Run(); }
    [[nodiscard]] Result Copy() const { return Copying(m_source.c_str(), m_destination.c_str()).Run(); }
    [[nodiscard]] Result Rename() const { return Renaming(m_source.c_str(), m_destination.c_str()).Run(); }

    // Of the file until the next pause, when he lets go of it.
    std::optional<OpenFile> holder;

private:
    StoppedClock m_clock;
};

using DeletionInUse = FileStepsInUse;
using CopyingInUse = FileStepsInUse;
using RenamingInUse = FileStepsInUse;

TEST_F(DeletionInUse, HappensOnceTheFileIsFree)
{
    holder.emplace(m_sourceFile);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_EQ(Delete(), PGSP_OK);

    EXPECT_TRUE(pause.hasBeen());
    EXPECT_FALSE(Exists(m_sourceFile));
}

TEST_F(DeletionInUse, IsRefusedSoon)
{
    holder.emplace(m_sourceFile);
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_EQ(Delete(), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500));
    EXPECT_EQ(ReadBytes(m_sourceFile), "bytes");
}

TEST_F(DeletionInUse, DoesNotWaitForAFileThatMayOnlyBeReadOrIsNotThere)
{
    const AtNextPause pause([] {});
    SetFileAttributesW(m_sourceFile.c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Delete(), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(Deletion(m_destination.c_str()).Run(), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_FALSE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(m_sourceFile), "bytes");
    SetFileAttributesW(m_sourceFile.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(CopyingInUse, HappensOnceTheSourceIsFree)
{
    holder.emplace(m_sourceFile, 0);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_EQ(Copy(), PGSP_OK);

    EXPECT_TRUE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(m_destinationFile), "bytes");
}

TEST_F(CopyingInUse, IsRefusedForASourceThatStaysHeld)
{
    holder.emplace(m_sourceFile, 0);

    EXPECT_EQ(Copy(), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_FALSE(Exists(m_destinationFile));
}

TEST_F(RenamingInUse, HappensOnceTheSourceIsFree)
{
    holder.emplace(m_sourceFile);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_EQ(Rename(), PGSP_OK);

    EXPECT_TRUE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(m_destinationFile), "bytes");
    EXPECT_FALSE(Exists(m_sourceFile));
}

TEST_F(RenamingInUse, IsRefusedForASourceThatStaysHeld)
{
    holder.emplace(m_sourceFile);
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_EQ(Rename(), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500));
    EXPECT_EQ(ReadBytes(m_sourceFile), "bytes");
    EXPECT_FALSE(Exists(m_destinationFile));
}

TEST_F(RenamingInUse, DoesNotWaitForADestinationThatIsThereOrASourceThatIsNot)
{
    const AtNextPause pause([] {});
    WriteBytes(m_destinationFile, "another");

    EXPECT_EQ(Rename(), PGSP_ERR_CANT_COPY_FILE);
    DeleteFileW(m_sourceFile.c_str());
    EXPECT_EQ(Rename(), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_FALSE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(m_destinationFile), "another");
}

} // namespace
} // namespace norvepa::test
