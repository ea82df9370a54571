#include "CoarseTimes.h"
#include "FileTimes.h"
#include "FreshScene.h"
#include "support/FileWriter.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

class ChangedFile : public FreshScene
{
protected:
    // The file is now what its twin was, and nobody could tell by size and write time.
    void ExpectOutwardlyTheSame() const
    {
        EXPECT_EQ(std::filesystem::file_size(subject.path()), m_size);
        EXPECT_EQ(TimesOf(subject.path()).written, m_written);
    }

    void ExpectEachOfManyChanges() const
    {
        for (int round = 0; round < 2; ++round)
        {
            subject.Write(kind.after);
            EXPECT_EQ(subject.Ask(), kind.after.answer);

            subject.Write(kind.before);
            EXPECT_EQ(subject.Ask(), kind.before.answer);
        }
    }

private:
    const std::uintmax_t m_size = std::filesystem::file_size(subject.path());
    const std::int64_t m_written = TimesOf(subject.path()).written;
};

TEST_P(ChangedFile, ShowsAnotherValueOfTheSameLength)
{
    subject.Write(kind.after);

    EXPECT_EQ(subject.Ask(), kind.after.answer);
    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

TEST_P(ChangedFile, ShowsEachOfManyChangesInARow)
{
    ExpectEachOfManyChanges();
}

TEST_P(ChangedFile, ShowsEachOfManyChangesThatFileTimesDoNotTellApart)
{
    const CoarseTimes coarse(place.library.module());
    ASSERT_EQ(subject.Ask(), kind.before.answer);
    ASSERT_EQ(subject.Ask(), kind.before.answer);

    ExpectEachOfManyChanges();
}

TEST_P(ChangedFile, ShowsAChangeWhoseWriteTimeIsSetBack)
{
    const std::int64_t written = TimesOf(subject.path()).written;

    FileWriter(subject.path()).Write(subject.Bytes(kind.after));
    SetWriteTime(subject.path(), written);

    EXPECT_EQ(subject.Ask(), kind.after.answer);
    ExpectOutwardlyTheSame();
}

TEST_P(ChangedFile, ShowsAnotherFileThatAnotherProcessPutsInItsPlace)
{
    place.Elsewhere("replace", {subject.twin(), subject.path()});

    EXPECT_EQ(subject.Ask(), kind.after.answer);
    ExpectOutwardlyTheSame();
}

TEST_P(ChangedFile, ShowsACopyOfAnOldFileInItsPlace)
{
    ASSERT_TRUE(DeleteFileW(subject.path().c_str()));
    ASSERT_TRUE(CopyFileW(subject.twin().c_str(), subject.path().c_str(), TRUE));
    SetWriteTime(subject.path(), TimesOf(subject.twin()).written);

    EXPECT_EQ(subject.Ask(), kind.after.answer);
    ExpectOutwardlyTheSame();
}

TEST_P(ChangedFile, ShowsWhatAnotherProcessWrites)
{
    place.Elsewhere("overwrite", {subject.twin(), subject.path()});

    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

// Folders may tell of both only later.

TEST_P(ChangedFile, ShowsWhatIsWrittenBeforeItIsClosed)
{
    const FileWriter writer(subject.path());
    writer.Write(subject.Bytes(kind.after));

    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

TEST_P(ChangedFile, ShowsWhatIsWrittenUnderItsSecondName)
{
    const std::wstring secondName = subject.twin() + L".link";
    ASSERT_TRUE(CreateHardLinkW(secondName.c_str(), subject.path().c_str(), nullptr));
    ASSERT_EQ(subject.Ask(), kind.before.answer);

    FileWriter(secondName).Write(subject.Bytes(kind.after));

    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

TEST_P(ChangedFile, ShowsAChangeBehindDeinit)
{
    place.library.NorvepaBl64x_deinit();
    subject.Write(kind.after);
    EXPECT_EQ(subject.Ask(), kind.after.answer);

    subject.Write(kind.before);
    place.library.NorvepaBl64x_deinit();
    EXPECT_EQ(subject.Ask(), kind.before.answer);
}

INSTANTIATE_TEST_SUITE_P(Each, ChangedFile, testing::ValuesIn(Kinds()), NameOfKind);

} // namespace
} // namespace norvepa::test
