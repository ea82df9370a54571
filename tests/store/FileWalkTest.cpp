#include "store/FileWalk.h"

#include "store/norvxml.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

class FileWalkTest : public testing::Test
{
protected:
    // A folder that is watched can't be removed.
    ~FileWalkTest() override { deinitWatchDirectories(); }

    void GivenFiles(std::initializer_list<std::wstring> names) const
    {
        for (const std::wstring& name : names)
        {
            WriteBytes(folder() + L"\\" + name, "");
        }
    }

    [[nodiscard]] std::wstring folder() const { return m_roots.data() + L"\\data\\LogDevices"; }
    [[nodiscard]] FileWalk Walk() const { return {folder(), m_roots.data()}; }
    [[nodiscard]] FileWalk WalkOver(const std::wstring& folder) const { return {folder, m_roots.data()}; }

    [[nodiscard]] static std::vector<std::wstring> Names(FileWalk& walk)
    {
        std::vector<std::wstring> names;
        std::wstring name;
        while (walk.At(static_cast<std::uint32_t>(names.size()), &name) == PGSP_OK)
        {
            names.push_back(name);
        }
        return names;
    }

private:
    StoreRoots m_roots;
};

TEST_F(FileWalkTest, TellsTheNamesThatTheStoreTellsOneByOne)
{
    GivenFiles({L"c.xml", L"Kessel(nmbr)1.xml", L"50#25.xml", L"a(temp).xml", L"plain.txt"});
    std::vector<std::wstring> expected;
    std::wstring name;
    while (NorvXMLEnumFile(folder().c_str(), static_cast<std::uint32_t>(expected.size()), &name) == PGSP_OK)
    {
        expected.push_back(name);
    }
    FileWalk walk = Walk();

    EXPECT_THAT(Names(walk), testing::ElementsAreArray(expected));

    EXPECT_THAT(expected, testing::UnorderedElementsAre(L"c", L"Kessel#1", L"50%", L"a(temp)"));
}

TEST_F(FileWalkTest, LooksAtTheFolderAtItsFirstStepAndNotBefore)
{
    FileWalk walk = Walk();

    GivenFiles({L"a.xml"});

    EXPECT_THAT(Names(walk), testing::ElementsAre(L"a"));
}

TEST_F(FileWalkTest, IsOfOneMoment)
{
    GivenFiles({L"a.xml", L"b.xml"});
    FileWalk walk = Walk();
    const auto before = Names(walk);

    GivenFiles({L"0.xml", L"c.xml"});
    DeleteFileW((folder() + L"\\b.xml").c_str());

    EXPECT_THAT(Names(walk), testing::ElementsAreArray(before));
    FileWalk next = Walk();
    EXPECT_THAT(Names(next), testing::UnorderedElementsAre(L"0", L"a", L"c"));
}

TEST_F(FileWalkTest, GoesToAnyFileInAnyOrder)
{
    GivenFiles({L"a.xml", L"b.xml", L"c.xml"});
    FileWalk walk = Walk();
    const auto names = Names(walk);
    std::wstring name;

    for (const std::uint32_t index : {2u, 0u, 1u, 0u})
    {
        EXPECT_EQ(walk.At(index, &name), PGSP_OK);
        EXPECT_EQ(name, names.at(index));
    }
}

TEST_F(FileWalkTest, HasAnEndAndLeavesTheNameThere)
{
    GivenFiles({L"a.xml"});
    FileWalk walk = Walk();
    std::wstring name = L"before";

    EXPECT_EQ(walk.At(1, &name), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(walk.At(0xFFFFFFFF, &name), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(name, L"before");

    EXPECT_EQ(walk.At(0, &name), PGSP_OK);
    EXPECT_EQ(name, L"a");
}

TEST_F(FileWalkTest, LooksAnewAtEachStepWhereTheFoldersCanNotBeWatched)
{
    GivenFiles({L"a.xml"});
    FileWalk walk(folder(), folder() + L"\\no data here");
    const auto before = Names(walk);

    GivenFiles({L"b.xml"});

    EXPECT_THAT(before, testing::ElementsAre(L"a"));
    EXPECT_THAT(Names(walk), testing::UnorderedElementsAre(L"a", L"b"));
}

TEST_F(FileWalkTest, HasNoNamesInAnEmptyFolder)
{
    FileWalk walk = Walk();

    EXPECT_THAT(Names(walk), testing::IsEmpty());
}

TEST_F(FileWalkTest, HasNoNamesInAFolderThatIsNotThereUntilItIs)
{
    const std::wstring later = folder() + L"\\later";
    FileWalk walk = WalkOver(later);
    std::wstring name;
    EXPECT_EQ(walk.At(0, &name), PGSP_ERR_NO_MORE_ITEMS);

    WriteBytes(later + L"\\a.xml", "");

    EXPECT_EQ(walk.At(0, &name), PGSP_OK);
    EXPECT_EQ(name, L"a");
}

TEST_F(FileWalkTest, IsRefusedWhereTheFoldersNameIsTooLong)
{
    FileWalk walk = WalkOver(std::wstring(260, L'x'));
    std::wstring name = L"before";

    EXPECT_EQ(walk.At(0, &name), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(name, L"before");
    EXPECT_EQ(NorvXMLEnumFile(std::wstring(260, L'x').c_str(), 0, &name), PGSP_ERR_BUFFER_TOO_SHORT);
}

// The name counts as a file's, escaped, also when the folder itself is short enough.
TEST_F(FileWalkTest, IsRefusedWhereTheFoldersNameIsTooLongOnceItIsEscaped)
{
    FileWalk walk = WalkOver(std::wstring(100, L'#'));
    std::wstring name;

    EXPECT_EQ(walk.At(0, &name), PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace
} // namespace norvepa::test
