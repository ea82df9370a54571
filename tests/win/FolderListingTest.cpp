#include "win/FolderListing.h"

#include "support/ImportHook.h"
#include "support/TemporaryFolder.h"
#include "win/Handle.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace norvepa::test
{
namespace
{

using win::FileStamp;
using win::FolderListing;

class AFolderListing : public testing::Test
{
protected:
    // Whether the listing tells of the file what the file itself tells.
    [[nodiscard]] bool IsToldAsItIs(const FolderListing& listing, const std::wstring& name) const
    {
        const FileStamp* const told = listing.Find(name);
        return told != nullptr && FileStamp::Of(folder / name) == *told;
    }

    TemporaryFolder folder;
};

TEST_F(AFolderListing, TellsOfEachFileWhatItsStampTells)
{
    WriteBytes(folder / L"a.xml", "one");
    WriteBytes(folder / L"b.txt", "three");
    WriteBytes(folder / L"empty", "");

    const auto listing = FolderListing::Of(folder.path());

    for (const wchar_t* name : {L"a.xml", L"b.txt", L"empty"})
    {
        EXPECT_TRUE(IsToldAsItIs(*listing, name)) << ToUtf8(name);
    }
    EXPECT_EQ(listing->Find(L"a.xml")->size(), 3);
    EXPECT_EQ(listing->Find(L"empty")->size(), 0);
}

TEST_F(AFolderListing, TellsTheTimesOfAFileThatWasWrittenLongAgo)
{
    const std::wstring file = folder / L"a.xml";
    WriteBytes(file, "one");
    {
        constexpr FILETIME longAgo{0x12345680, 0x01C00000};
        const win::Handle handle(CreateFileW(file.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(SetFileTime(handle.get(), nullptr, nullptr, &longAgo));
    }

    const auto listing = FolderListing::Of(folder.path());

    EXPECT_TRUE(IsToldAsItIs(*listing, L"a.xml"));
}

TEST_F(AFolderListing, IsOfOneMoment)
{
    WriteBytes(folder / L"a.xml", "one");
    const auto before = FolderListing::Of(folder.path());

    WriteBytes(folder / L"a.xml", "three");
    WriteBytes(folder / L"later.xml", "");

    EXPECT_EQ(before->Find(L"a.xml")->size(), 3);
    EXPECT_EQ(before->Find(L"later.xml"), nullptr);
    EXPECT_TRUE(IsToldAsItIs(*FolderListing::Of(folder.path()), L"a.xml"));
}

TEST_F(AFolderListing, IsCertainOfWhatWasWrittenLongAgoOnly)
{
    wchar_t windows[MAX_PATH];
    GetSystemDirectoryW(windows, MAX_PATH);
    WriteBytes(folder / L"a.xml", "one");

    EXPECT_FALSE(FolderListing::Of(folder.path())->Find(L"a.xml")->IsCertain());
    EXPECT_TRUE(FolderListing::Of(windows)->Find(L"kernel32.dll")->IsCertain());
}

// The system tells of a folder in pieces.
TEST_F(AFolderListing, TellsOfMoreFilesThanOnePieceHolds)
{
    constexpr int files = 800;
    const std::wstring longName(100, L'n');
    for (int file = 0; file < files; ++file)
    {
        WriteBytes(folder / (longName + std::to_wstring(file)),
                   std::string(static_cast<std::size_t>(file % 7), 'x'));
    }

    const auto listing = FolderListing::Of(folder.path());

    for (int file = 0; file < files; ++file)
    {
        const FileStamp* const told = listing->Find(longName + std::to_wstring(file));
        ASSERT_NE(told, nullptr) << file;
        EXPECT_EQ(told->size(), file % 7);
    }
}

TEST_F(AFolderListing, KnowsNamesAsTheyAreSpelled)
{
    WriteBytes(folder / L"Gr\u00F6\u00DFe (temp).xml", "");

    const auto listing = FolderListing::Of(folder.path());

    EXPECT_NE(listing->Find(L"Gr\u00F6\u00DFe (temp).xml"), nullptr);
    EXPECT_EQ(listing->Find(L"gr\u00F6\u00DFe (temp).xml"), nullptr);
    EXPECT_EQ(listing->Find(L"GR\u00D6\u00DFE (TEMP).XML"), nullptr);
    EXPECT_EQ(listing->Find(L"Gr\u00F6\u00DFe (temp)"), nullptr);
    EXPECT_EQ(listing->Find(L""), nullptr);
}

TEST_F(AFolderListing, HasNoFileWhereThereIsNone)
{
    EXPECT_TRUE(FolderListing::Of(folder.path()));
    EXPECT_EQ(FolderListing::Of(folder.path())->Find(L"a.xml"), nullptr);
}

TEST_F(AFolderListing, TellsNothingOfWhatLiesFurtherInside)
{
    WriteBytes(folder / L"inside\\a.xml", "");

    const auto listing = FolderListing::Of(folder.path());

    EXPECT_EQ(listing->Find(L"a.xml"), nullptr);
    EXPECT_EQ(listing->Find(L"inside\\a.xml"), nullptr);
}

TEST_F(AFolderListing, IsNoneOfAFolderThatIsNotThere)
{
    EXPECT_FALSE(FolderListing::Of(folder / L"missing"));
    EXPECT_FALSE(FolderListing::Of(L""));
}

TEST_F(AFolderListing, IsNoneOfAFile)
{
    WriteBytes(folder / L"a.xml", "");

    EXPECT_FALSE(FolderListing::Of(folder / L"a.xml"));
}

BOOL WINAPI TellNothing(HANDLE /*folder*/, FILE_INFO_BY_HANDLE_CLASS /*what*/, void* /*place*/,
                        DWORD /*size*/)
{
    SetLastError(ERROR_NETNAME_DELETED);
    return FALSE;
}

TEST_F(AFolderListing, IsNoneWhenTheSystemBreaksOff)
{
    const ImportHook broken("GetFileInformationByHandleEx", TellNothing);

    EXPECT_FALSE(FolderListing::Of(folder.path()));
}

TEST_F(AFolderListing, LetsGoOfItsFolder)
{
    const std::wstring inside = folder / L"inside";
    MakeFolders(inside);

    static_cast<void>(FolderListing::Of(inside));

    EXPECT_TRUE(RemoveDirectoryW(inside.c_str()));
}

} // namespace
} // namespace norvepa::test
