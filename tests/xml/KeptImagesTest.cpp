// What stays in memory from one call to the next: images of files that certainly are what they were.

#include "support/FileWriter.h"
#include "support/OpenFile.h"
#include "xml/CallScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

class KeptImages : public CallScene
{
protected:
    // Of so many readings, those that an engine was made for.
    static std::size_t EnginesFor(int readings, const std::wstring& path)
    {
        const FileLooks looks;
        for (int times = 0; times < readings; ++times)
        {
            EXPECT_NE(Met(path), "");
        }
        return FileLooks::engines();
    }

    // The process's current folder for as long as it lives.
    class Standing
    {
    public:
        explicit Standing(const std::wstring& folder) { std::filesystem::current_path(folder); }
        Standing(const Standing&) = delete;
        Standing& operator=(const Standing&) = delete;
        ~Standing() { std::filesystem::current_path(m_before); }

    private:
        const std::filesystem::path m_before = std::filesystem::current_path();
    };

    const std::wstring oldFolder = TakeOldFolder();
    const std::wstring oldFile = oldFolder + L"\\a.xml";
};

TEST_F(KeptImages, OfAnOldFileAreMadeOnce)
{
    EXPECT_EQ(EnginesFor(3, oldFile), 1U);

    const CallScope call;
    EXPECT_EQ(EnginesFor(3, oldFile), 0U);
    EXPECT_EQ(Met(oldFile), "<old-a/>");
}

TEST_F(KeptImages, OfAYoungFileAreNone)
{
    Say("young");

    EXPECT_EQ(EnginesFor(3, file()), 3U);
}

TEST_F(KeptImages, GoWhenTheFileIsChanged)
{
    ASSERT_EQ(EnginesFor(2, oldFile), 1U);

    WriteBytes(oldFile, "<new-a/>"); // as long as it was

    EXPECT_EQ(Met(oldFile), "<new-a/>");
    WriteBytes(oldFile, "<new-b/>");
    EXPECT_EQ(Met(oldFile), "<new-b/>");
}

TEST_F(KeptImages, GoWhenTheFileIsChangedAndGetsItsOldTimeAgain)
{
    ASSERT_EQ(EnginesFor(2, oldFile), 1U);
    const auto written = std::filesystem::last_write_time(oldFile);

    WriteBytes(oldFile, "<new-a/>");
    std::filesystem::last_write_time(oldFile, written);

    EXPECT_EQ(Met(oldFile), "<new-a/>");
}

TEST_F(KeptImages, GoWhenAnotherFileTakesThePlace)
{
    ASSERT_EQ(EnginesFor(2, oldFile), 1U);

    std::filesystem::rename(oldFolder + L"\\b.xml", oldFile);

    EXPECT_EQ(Met(oldFile), "<old-b/>");
}

TEST_F(KeptImages, AreSeenByNobodyOnceTheFileIsGone)
{
    ASSERT_EQ(EnginesFor(2, oldFile), 1U);

    std::filesystem::remove(oldFile);

    EXPECT_EQ(Met(oldFile), "error " + std::to_string(ERROR_FILE_NOT_FOUND));
}

TEST_F(KeptImages, AreSeenByNobodyWhileAnotherKeepsTheFileToHimself)
{
    ASSERT_EQ(EnginesFor(2, oldFile), 1U);
    {
        const OpenFile holder(oldFile, 0);

        EXPECT_EQ(Met(oldFile), "error " + std::to_string(ERROR_SHARING_VIOLATION));
    }
    EXPECT_EQ(Met(oldFile), "<old-a/>");
}

TEST_F(KeptImages, GoWhileSomebodyStillWritesTheFile)
{
    ASSERT_EQ(EnginesFor(2, oldFile), 1U);
    const FileWriter writer(oldFile);

    writer.Write("<new-a/>");

    EXPECT_EQ(Met(oldFile), "<new-a/>");
}

TEST_F(KeptImages, ByARelativePathAreNone)
{
    const Standing here(oldFolder);

    EXPECT_EQ(EnginesFor(2, L"a.xml"), 2U);
    EXPECT_EQ(EnginesFor(2, L".\\a.xml"), 2U);
    EXPECT_EQ(EnginesFor(2, L"C:a.xml"), 2U);
    EXPECT_EQ(EnginesFor(2, oldFile.substr(2)), 2U); // from the root of whatever drive
}

TEST_F(KeptImages, ByARelativePathAreOfTheFileThatItLeadsTo)
{
    const std::wstring other = TakeOldFolder();
    std::filesystem::rename(other + L"\\b.xml", other + L"\\a.xml");
    {
        const Standing here(oldFolder);
        ASSERT_EQ(Met(L"a.xml"), "<old-a/>");
    }
    const Standing there(other);

    EXPECT_EQ(Met(L"a.xml"), "<old-b/>");
}

TEST_F(KeptImages, ByALongPathAreKept)
{
    EXPECT_EQ(EnginesFor(2, L"\\\\?\\" + oldFile), 1U);
}

TEST_F(KeptImages, AreDroppedForAllFiles)
{
    ASSERT_EQ(EnginesFor(2, oldFile), 1U);

    DropImages();

    EXPECT_EQ(EnginesFor(2, oldFile), 1U);
}

} // namespace
} // namespace norvepa::test
