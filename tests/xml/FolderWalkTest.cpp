// A walk over the files of a folder, which is listed once and vouches for those that are as they were.

#include "support/OpenFile.h"
#include "xml/CallImages.h"
#include "xml/CallScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

namespace fs = std::filesystem;

// A call in which the files of an old folder have been read before, by another call.
class FolderWalkTest : public CallScene
{
protected:
    FolderWalkTest()
    {
        for (const wchar_t* const name : {L"a.xml", L"b.xml", L"c.xml"})
        {
            EXPECT_NE(Met(File(name)), "");
        }
    }

    [[nodiscard]] std::wstring File(std::wstring_view name) const
    {
        return oldFolder + L"\\" + std::wstring(name);
    }

    [[nodiscard]] static bool IsRead(const std::wstring& path, std::string_view met)
    {
        const std::size_t before = FileLooks::openingsOf(path);
        EXPECT_EQ(Met(path), met);
        return FileLooks::openingsOf(path) > before;
    }

    const std::wstring oldFolder = TakeOldFolder();
};

TEST_F(FolderWalkTest, OpensNoFileThatIsAsItWas)
{
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_FALSE(IsRead(File(L"a.xml"), "<old-a/>"));
    EXPECT_FALSE(IsRead(File(L"b.xml"), "<old-b/>"));
    EXPECT_FALSE(IsRead(File(L"c.xml"), "<old-c/>"));

    EXPECT_EQ(FileLooks::engines(), 0U);
    EXPECT_EQ(FileLooks::openings(), 1U); // of the folder
}

TEST_F(FolderWalkTest, ReadsAFileThatWasChanged)
{
    WriteBytes(File(L"b.xml"), "<new-b/>");
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_FALSE(IsRead(File(L"a.xml"), "<old-a/>"));
    EXPECT_TRUE(IsRead(File(L"b.xml"), "<new-b/>"));
}

TEST_F(FolderWalkTest, ReadsAFileThatWasPutInThePlaceOfAnother)
{
    fs::rename(File(L"c.xml"), File(L"b.xml"));
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_TRUE(IsRead(File(L"b.xml"), "<old-c/>"));
}

TEST_F(FolderWalkTest, ReadsAFileThatIsNew)
{
    WriteBytes(File(L"d.xml"), "<d/>");
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_TRUE(IsRead(File(L"d.xml"), "<d/>"));
}

TEST_F(FolderWalkTest, ReadsAFileThatIsMadeWhileItGoesOn)
{
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);
    ASSERT_FALSE(IsRead(File(L"a.xml"), "<old-a/>"));

    WriteBytes(File(L"d.xml"), "<d/>");

    EXPECT_TRUE(IsRead(File(L"d.xml"), "<d/>"));
}

TEST_F(FolderWalkTest, TellsThatAFileWasRemoved)
{
    fs::remove(File(L"b.xml"));
    const CallScope call;
    const FolderWalk walk(oldFolder);

    EXPECT_EQ(Met(File(L"b.xml")), "error " + std::to_string(ERROR_FILE_NOT_FOUND));
}

TEST_F(FolderWalkTest, ReadsAnOldFileThatNobodyHasRead)
{
    DropImages();
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_TRUE(IsRead(File(L"a.xml"), "<old-a/>"));
    EXPECT_FALSE(IsRead(File(L"a.xml"), "<old-a/>"));
}

TEST_F(FolderWalkTest, ReadsAFileThatIsSpelledInAnotherCase)
{
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_TRUE(IsRead(File(L"A.xml"), "<old-a/>"));
}

TEST_F(FolderWalkTest, ReadsFilesOfOtherFolders)
{
    Say("young");
    const std::wstring below = File(L"below\\a.xml");
    WriteBytes(below, "<below/>");
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_TRUE(IsRead(file(), "<young/>"));
    EXPECT_TRUE(IsRead(below, "<below/>"));
}

TEST_F(FolderWalkTest, AnswersAlsoWhileSomebodyKeepsAFileToHimself)
{
    const OpenFile holder(File(L"a.xml"), 0);
    const CallScope call;
    const FolderWalk walk(oldFolder);

    EXPECT_EQ(Met(File(L"a.xml")), "<old-a/>");
}

TEST_F(FolderWalkTest, SeesTheFolderAsItWasWhenItWasFirstAsked)
{
    const CallScope call;
    const FolderWalk walk(oldFolder);
    ASSERT_EQ(Met(File(L"a.xml")), "<old-a/>");

    WriteBytes(File(L"b.xml"), "<new-b/>");

    EXPECT_EQ(Met(File(L"b.xml")), "<old-b/>");
}

TEST_F(FolderWalkTest, ListsTheFolderAgainOnceTheCallHasWritten)
{
    const CallScope call;
    const FolderWalk walk(oldFolder);
    ASSERT_EQ(Met(File(L"a.xml")), "<old-a/>");
    WriteBytes(File(L"b.xml"), "<new-b/>");

    ForgetImages();

    EXPECT_EQ(Met(File(L"b.xml")), "<new-b/>");
    const FileLooks looks;
    EXPECT_FALSE(IsRead(File(L"c.xml"), "<old-c/>")); // the walk goes on
}

TEST_F(FolderWalkTest, EndsWithItsObject)
{
    const CallScope call;
    const FileLooks looks;
    {
        const FolderWalk walk(oldFolder);
        ASSERT_FALSE(IsRead(File(L"a.xml"), "<old-a/>"));
    }

    EXPECT_TRUE(IsRead(File(L"b.xml"), "<old-b/>"));
    const FolderWalk next(oldFolder);
    EXPECT_FALSE(IsRead(File(L"c.xml"), "<old-c/>"));
}

TEST_F(FolderWalkTest, IsNoneOutsideOfACall)
{
    const FileLooks looks;
    const FolderWalk walk(oldFolder);

    EXPECT_TRUE(IsRead(File(L"a.xml"), "<old-a/>"));
}

TEST_F(FolderWalkTest, GoesOnBehindAnotherWithinIt)
{
    const std::wstring other = TakeOldFolder();
    ASSERT_EQ(Met(other + L"\\a.xml"), "<old-a/>");
    const CallScope call;
    const FileLooks looks;
    const FolderWalk walk(oldFolder);
    {
        const FolderWalk inner(other);

        EXPECT_TRUE(IsRead(other + L"\\a.xml", "<old-a/>"));
        EXPECT_FALSE(IsRead(File(L"a.xml"), "<old-a/>"));
    }

    EXPECT_FALSE(IsRead(File(L"b.xml"), "<old-b/>"));
}

TEST_F(FolderWalkTest, ByARelativePathVouchesForNothing)
{
    const fs::path before = fs::current_path();
    fs::current_path(oldFolder);
    {
        const CallScope call;
        const FolderWalk walk(L".");
        const FileLooks looks;

        EXPECT_TRUE(IsRead(L".\\a.xml", "<old-a/>"));
        EXPECT_TRUE(IsRead(File(L"b.xml"), "<old-b/>"));
    }
    fs::current_path(before);
}

TEST_F(FolderWalkTest, OverAFolderThatIsNotThereTellsSo)
{
    const CallScope call;
    const FolderWalk walk(File(L"nowhere"));

    EXPECT_EQ(Met(File(L"nowhere\\a.xml")), "error " + std::to_string(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(Met(File(L"a.xml")), "<old-a/>");
}

} // namespace
} // namespace norvepa::test
