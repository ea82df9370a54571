#include "win/NewFile.h"

#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"
#include "win/FileCalls.h"
#include "win/MadeFiles.h"

#include <gmock/gmock.h>
#include <optional>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using win::NewFile;

// Files that are made beside their place.
class AFileMadeBeside : public testing::Test
{
protected:
    [[nodiscard]] std::vector<std::wstring> FilesThere() const { return FileNames(folder.path()); }

    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
    const std::wstring beside = folder / L"~file.new";
};

TEST_F(AFileMadeBeside, IsThereWholeOnceItIsKept)
{
    {
        NewFile made = NewFile::CreateBeside(file);
        EXPECT_TRUE(made.Write("one, "));
        EXPECT_TRUE(made.Write("two"));
        EXPECT_TRUE(made.Keep());
    }

    EXPECT_THAT(FilesThere(), ElementsAre(L"file.xml"));
    EXPECT_EQ(ReadBytes(file), "one, two");
}

TEST_F(AFileMadeBeside, IsNotInItsPlaceAndInNoListingOfDocumentsBefore)
{
    const NewFile made = NewFile::CreateBeside(file);
    EXPECT_TRUE(made.Write("bytes"));

    EXPECT_FALSE(Exists(file));
    EXPECT_THAT(DocumentsIn(folder.path()), IsEmpty());
}

TEST_F(AFileMadeBeside, IsGoneWhenItIsNotKept)
{
    {
        const NewFile made = NewFile::CreateBeside(file);
        EXPECT_TRUE(made.Write("bytes"));
        EXPECT_THAT(FilesThere(), ElementsAre(L"~file.new"));
    }

    EXPECT_THAT(FilesThere(), IsEmpty());
}

TEST_F(AFileMadeBeside, BeginsAnewWhenItIsEmptied)
{
    {
        NewFile made = NewFile::CreateBeside(file);
        EXPECT_TRUE(made.Write("bytes"));

        made.Empty();

        EXPECT_TRUE(made.Keep());
    }

    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(AFileMadeBeside, DoesNotTakeThePlaceOfAnother)
{
    WriteBytes(file, "another");

    const NewFile made = NewFile::CreateBeside(file);

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_EXISTS});
    EXPECT_FALSE(made);
    EXPECT_EQ(ReadBytes(file), "another");
    EXPECT_THAT(FilesThere(), ElementsAre(L"file.xml"));
}

TEST_F(AFileMadeBeside, DoesNotTakeThePlaceOfAFolder)
{
    MakeFolders(file);

    EXPECT_FALSE(NewFile::CreateBeside(file));

    EXPECT_THAT(FilesThere(), ElementsAre(L"file.xml"));
}

TEST_F(AFileMadeBeside, GivesWayToAnotherThatWasFaster)
{
    {
        NewFile made = NewFile::CreateBeside(file);
        EXPECT_TRUE(made.Write("slow"));
        WriteBytes(file, "fast");

        EXPECT_FALSE(made.Keep());
        EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_EXISTS});
    }

    EXPECT_EQ(ReadBytes(file), "fast");
    EXPECT_THAT(FilesThere(), ElementsAre(L"file.xml"));
}

TEST_F(AFileMadeBeside, TakesOverWhatAnotherHasLeftHalfMade)
{
    WriteBytes(beside, "the half of something longer");
    {
        NewFile made = NewFile::CreateBeside(file);
        EXPECT_TRUE(made.Write("whole"));
        EXPECT_TRUE(made.Keep());
    }

    EXPECT_EQ(ReadBytes(file), "whole");
    EXPECT_THAT(FilesThere(), ElementsAre(L"file.xml"));
}

TEST_F(AFileMadeBeside, IsOpenForNobodyElseUntilItIsKept)
{
    const NewFile made = NewFile::CreateBeside(file);

    EXPECT_THROW(OpenFile(beside, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE),
                 std::runtime_error);
}

TEST_F(AFileMadeBeside, LiesOnTheDiskBeforeItIsInItsPlace)
{
    FileCalls calls;
    NewFile made = NewFile::CreateBeside(file);
    EXPECT_TRUE(made.Write("bytes"));

    EXPECT_TRUE(made.Keep());

    EXPECT_THAT(calls.told, ElementsAre("write 5", "flush", "move"));
}

TEST_F(AFileMadeBeside, TellsOfADiskThatTakesAPartOrNothing)
{
    FileCalls calls;
    const NewFile made = NewFile::CreateBeside(file);

    calls.roomForNextWrite = 4;
    EXPECT_FALSE(made.Write("bytes"));
    calls.nextWriteFails = true;
    EXPECT_FALSE(made.Write("bytes"));

    EXPECT_TRUE(made.Write("bytes"));
}

TEST_F(AFileMadeBeside, IsNotMadeWithoutItsFolder)
{
    const std::wstring lost = folder / L"gone\\file.xml";

    const NewFile made = NewFile::CreateBeside(lost);

    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
    EXPECT_FALSE(made);
    EXPECT_THAT(FilesThere(), IsEmpty());
}

TEST_F(AFileMadeBeside, MayHaveAnyNameOrExtension)
{
    for (const wchar_t* name : {L"plain", L"a.b.c", L".xml", L"x.y z", L"Gr\u00F6\u00DFe.parameters"})
    {
        const std::wstring path = folder / name;
        NewFile made = NewFile::CreateBeside(path);
        EXPECT_TRUE(made.Keep());
    }

    EXPECT_THAT(FilesThere(), testing::UnorderedElementsAre(L"plain", L"a.b.c", L".xml", L"x.y z",
                                                            L"Gr\u00F6\u00DFe.parameters"));
}

// The place beside a path is longer by one than this one, and a path has no room for it.
TEST_F(AFileMadeBeside, IsMadeInItsPlaceWhenThereIsNoRoomBeside)
{
    const std::wstring path = PathOfLength(folder, 259);
    {
        NewFile made = NewFile::CreateBeside(path);
        EXPECT_TRUE(Exists(path));
        EXPECT_TRUE(made.Write("bytes"));
        EXPECT_THROW(OpenFile(path, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE),
                     std::runtime_error);
        EXPECT_TRUE(made.Keep());
    }

    EXPECT_EQ(ReadBytes(path), "bytes");
    EXPECT_FALSE(NewFile::CreateBeside(path));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_EXISTS});
    EXPECT_EQ(ReadBytes(path), "bytes");
}

TEST_F(AFileMadeBeside, IsGoneFromItsPlaceWhenThereWasNoRoomBesideAndItIsNotKept)
{
    const std::wstring path = PathOfLength(folder, 259);

    static_cast<void>(NewFile::CreateBeside(path).Write("bytes"));

    EXPECT_THAT(FilesThere(), IsEmpty());
}

TEST_F(AFileMadeBeside, IsMadeBesideTheLongestPathThatHasRoom)
{
    const std::wstring path = PathOfLength(folder, 258);
    {
        NewFile made = NewFile::CreateBeside(path);
        EXPECT_FALSE(Exists(path));
        EXPECT_TRUE(made.Write("bytes"));
        EXPECT_TRUE(made.Keep());
    }

    EXPECT_EQ(ReadBytes(path), "bytes");
}

// The place beside it would have room, as its extension is another.
TEST_F(AFileMadeBeside, IsNotMovedToAPathWithoutRoom)
{
    const std::wstring path = folder / (L"a." + std::wstring(300, L'x'));

    NewFile made = NewFile::CreateBeside(path);

    EXPECT_FALSE(made && made.Keep());
}

} // namespace
} // namespace norvepa::test
