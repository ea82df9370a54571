#include "store/FileSteps.h"

#include "store/FileStepsScene.h"

namespace norvepa::test
{
namespace
{

// The two halves of a step: what is settled when it is made, and what happens when it runs.
using DeletionTest = FileStepsScene;
using CopyingTest = FileStepsScene;
using RenamingTest = FileStepsScene;
using ReplacingPathsTest = FileStepsScene;

TEST_F(DeletionTest, HappensWhenItRunsAndNotBefore)
{
    WriteBytes(m_sourceFile, "bytes");

    const Deletion deletion(m_source.c_str());
    EXPECT_EQ(ReadBytes(m_sourceFile), "bytes");

    EXPECT_EQ(deletion.Run(), PGSP_OK);
    EXPECT_FALSE(Exists(m_sourceFile));
}

TEST_F(DeletionTest, MeansTheFileThatIsThereWhenItRuns)
{
    const Deletion deletion(m_source.c_str());
    EXPECT_EQ(deletion.Run(), PGSP_ERR_CANT_DELETE_FILE);

    WriteBytes(m_sourceFile, "later");
    EXPECT_EQ(deletion.Run(), PGSP_OK);

    EXPECT_FALSE(Exists(m_sourceFile));
}

TEST_F(DeletionTest, OfAPathThatWasRefusedDoesNothing)
{
    EXPECT_EQ(Deletion(nullptr).Run(), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Deletion(L"").Run(), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Deletion(m_tooLong.c_str()).Run(), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(DeletionTest, ExtendsAPathThatDoesNotEndInTheExtension)
{
    WriteBytes(folder() / L"a.xml.old.xml", "<a/>");
    WriteBytes(folder() / L"a.xml.old", "stays");

    EXPECT_EQ(Deletion((folder() / L"a.xml.old").c_str()).Run(), PGSP_OK);

    EXPECT_THAT(FileNames(folder().path()), testing::ElementsAre(L"a.xml.old"));
}

TEST_F(CopyingTest, HappensWhenItRunsAndNotBefore)
{
    WriteBytes(m_sourceFile, "bytes");

    const Copying copying(m_source.c_str(), m_destination.c_str());
    EXPECT_FALSE(Exists(m_destinationFile));

    EXPECT_EQ(copying.Run(), PGSP_OK);
    EXPECT_EQ(ReadBytes(m_destinationFile), "bytes");
    EXPECT_EQ(ReadBytes(m_sourceFile), "bytes");
}

TEST_F(CopyingTest, KnowsItsFileBeforeItIsThere)
{
    const Copying copying(m_source.c_str(), m_destination.c_str());

    EXPECT_EQ(copying.newFile(), m_destinationFile);
}

TEST_F(CopyingTest, MeansTheFilesThatAreThereWhenItRuns)
{
    const Copying copying(m_source.c_str(), m_destination.c_str());
    EXPECT_EQ(copying.Run(), PGSP_ERR_CANT_COPY_FILE);

    WriteBytes(m_sourceFile, "later");
    EXPECT_EQ(copying.Run(), PGSP_OK);
    EXPECT_EQ(copying.Run(), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_EQ(ReadBytes(m_destinationFile), "later");
}

TEST_F(CopyingTest, OfAPathThatWasRefusedDoesNothing)
{
    const auto copy = [](const wchar_t* from, const wchar_t* to) { return Copying(from, to).Run(); };
    WriteBytes(m_sourceFile, "bytes");

    EXPECT_EQ(copy(nullptr, m_destination.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(copy(m_source.c_str(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(copy(m_tooLong.c_str(), m_destination.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(copy(m_source.c_str(), m_tooLong.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(copy(m_tooLong.c_str(), L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(FileNames(folder().path()), testing::SizeIs(1));
}

TEST_F(CopyingTest, ExtendsPathsThatHoldNoExtensionAnywhere)
{
    WriteBytes(folder() / L"a.xml.old", "<a/>");

    EXPECT_EQ(Copying((folder() / L"a.xml.old").c_str(), (folder() / L"b.xml.old").c_str()).Run(), PGSP_OK);

    EXPECT_EQ(ReadBytes(folder() / L"b.xml.old"), "<a/>");
}

TEST_F(RenamingTest, HappensWhenItRunsAndNotBefore)
{
    WriteBytes(m_sourceFile, "bytes");

    const Renaming renaming(m_source.c_str(), m_destination.c_str());
    EXPECT_EQ(ReadBytes(m_sourceFile), "bytes");

    EXPECT_EQ(renaming.Run(), PGSP_OK);
    EXPECT_EQ(ReadBytes(m_destinationFile), "bytes");
    EXPECT_FALSE(Exists(m_sourceFile));
}

TEST_F(RenamingTest, MeansTheFilesThatAreThereWhenItRuns)
{
    const Renaming renaming(m_source.c_str(), m_destination.c_str());
    EXPECT_EQ(renaming.Run(), PGSP_ERR_CANT_COPY_FILE);

    WriteBytes(m_sourceFile, "later");
    EXPECT_EQ(renaming.Run(), PGSP_OK);

    EXPECT_EQ(ReadBytes(m_destinationFile), "later");
}

TEST_F(RenamingTest, OfAPathThatWasRefusedDoesNothing)
{
    const auto rename = [](const wchar_t* from, const wchar_t* to) { return Renaming(from, to).Run(); };
    WriteBytes(m_sourceFile, "bytes");

    EXPECT_EQ(rename(L"", m_destination.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(rename(m_source.c_str(), L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(rename(m_tooLong.c_str(), m_destination.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(rename(m_source.c_str(), m_tooLong.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(ReadBytes(m_sourceFile), "bytes");
}

TEST_F(RenamingTest, ExtendsPathsThatDoNotEndInTheExtension)
{
    WriteBytes(folder() / L"a.xml.old.xml", "<a/>");

    EXPECT_EQ(Renaming((folder() / L"a.xml.old").c_str(), (folder() / L"b.xml.old").c_str()).Run(), PGSP_OK);

    EXPECT_THAT(FileNames(folder().path()), testing::ElementsAre(L"b.xml.old.xml"));
}

TEST_F(ReplacingPathsTest, OfAPathThatWasRefusedDoesNothing)
{
    const auto replace = [](const wchar_t* from, const wchar_t* to) { return Replacing(from, to).Run(); };
    WriteBytes(m_sourceFile, "new");
    WriteBytes(m_destinationFile, "old");

    EXPECT_EQ(replace(nullptr, m_destination.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(replace(L"", m_destination.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(replace(m_source.c_str(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(replace(m_tooLong.c_str(), m_destination.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(replace(m_source.c_str(), m_tooLong.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(ReadBytes(m_sourceFile), "new");
    EXPECT_EQ(ReadBytes(m_destinationFile), "old");
}

TEST_F(ReplacingPathsTest, ExtendsPathsThatDoNotEndInTheExtension)
{
    WriteBytes(folder() / L"a.xml.old.xml", "new");
    WriteBytes(folder() / L"b.xml.old.xml", "old");

    EXPECT_EQ(Replacing((folder() / L"a.xml.old").c_str(), (folder() / L"b.xml.old").c_str()).Run(), PGSP_OK);

    EXPECT_THAT(FileNames(folder().path()), testing::ElementsAre(L"b.xml.old.xml"));
}

} // namespace
} // namespace norvepa::test
