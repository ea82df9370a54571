#include "support/FileWriter.h"
#include "support/ImportHook.h"
#include "support/SystemFunction.h"
#include "support/TemporaryFolder.h"
#include "win/Handle.h"
#include "win/WholeFile.h"

#include <windows.h>

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using win::WriteWholeFile;

constexpr std::string_view Blank = " ";

class WrittenFile : public testing::Test
{
protected:
    // Of the file as the system knows it, whatever it is called and holds.
    [[nodiscard]] BY_HANDLE_FILE_INFORMATION Identity() const
    {
        const win::Handle handle(CreateFileW(file.c_str(), FILE_READ_ATTRIBUTES,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        BY_HANDLE_FILE_INFORMATION identity{};
        EXPECT_TRUE(GetFileInformationByHandle(handle.get(), &identity));
        return identity;
    }

    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

TEST_F(WrittenFile, HoldsALongerText)
{
    WriteBytes(file, "old");

    EXPECT_TRUE(WriteWholeFile(file, "longer than that", Blank));

    EXPECT_EQ(ReadBytes(file), "longer than that");
}

TEST_F(WrittenFile, HoldsAShorterTextAndNothingOfTheOldOne)
{
    WriteBytes(file, "a longer text");

    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(ReadBytes(file), "new");
}

TEST_F(WrittenFile, HoldsATextOfTheSameLength)
{
    WriteBytes(file, "old");

    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(ReadBytes(file), "new");
}

TEST_F(WrittenFile, CanBeEmptied)
{
    WriteBytes(file, "old");

    EXPECT_TRUE(WriteWholeFile(file, "", Blank));

    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(WrittenFile, CanBeFilledWhenItIsEmpty)
{
    WriteBytes(file, "");

    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(ReadBytes(file), "new");
}

TEST_F(WrittenFile, HoldsEveryByteThereIs)
{
    std::string bytes;
    for (int i = 0; i < 100'000; ++i)
    {
        bytes += static_cast<char>(i % 256);
    }
    WriteBytes(file, "old");

    EXPECT_TRUE(WriteWholeFile(file, bytes, Blank));

    EXPECT_TRUE(ReadBytes(file) == bytes);
}

// What is shorter by no multiple of a blank's length is cut all the same.
TEST_F(WrittenFile, EndsWithItsTextWhateverTheLengthOfABlank)
{
    for (const std::string_view old : {"123456789", "12345678"})
    {
        WriteBytes(file, old);

        EXPECT_TRUE(WriteWholeFile(file, "abcd", std::string_view(" \0", 2)));

        EXPECT_EQ(ReadBytes(file), "abcd");
    }
}

TEST_F(WrittenFile, IsTheSameFileAsBefore)
{
    WriteBytes(file, "old");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN);
    const auto before = Identity();

    EXPECT_TRUE(WriteWholeFile(file, "longer", Blank));
    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    const auto after = Identity();
    EXPECT_EQ(after.nFileIndexHigh, before.nFileIndexHigh);
    EXPECT_EQ(after.nFileIndexLow, before.nFileIndexLow);
    EXPECT_EQ(after.dwFileAttributes, before.dwFileAttributes);
    EXPECT_TRUE(after.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(WrittenFile, KeepsTheNamesThatItHas)
{
    const std::wstring other = folder / L"other name.xml";
    WriteBytes(file, "old");
    ASSERT_TRUE(CreateHardLinkW(other.c_str(), file.c_str(), nullptr));

    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(ReadBytes(other), "new");
}

TEST_F(WrittenFile, HasNothingBesideIt)
{
    WriteBytes(file, "old");

    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"file.xml"));
}

TEST_F(WrittenFile, IsMadeWhereThereIsNone)
{
    EXPECT_TRUE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(ReadBytes(file), "new");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"file.xml"));
}

TEST_F(WrittenFile, IsMadeEmptyFromNothing)
{
    EXPECT_TRUE(WriteWholeFile(file, "", Blank));

    EXPECT_EQ(ReadBytes(file), "");
}

TEST_F(WrittenFile, IsLetGoOfAfterwards)
{
    for (const std::string_view bytes : {"made", "written"})
    {
        EXPECT_TRUE(WriteWholeFile(file, bytes, Blank));

        const win::Handle alone(CreateFileW(file.c_str(), GENERIC_READ | DELETE, 0, nullptr, OPEN_EXISTING,
                                            FILE_ATTRIBUTE_NORMAL, nullptr));
        EXPECT_TRUE(alone);
    }
}

TEST_F(WrittenFile, IsNotMadeInAFolderThatIsNotThere)
{
    EXPECT_FALSE(WriteWholeFile(folder / L"gone\\file.xml", "new", Blank));

    EXPECT_THAT(FileNames(folder.path()), IsEmpty());
}

TEST_F(WrittenFile, IsNoFolder)
{
    MakeFolders(file);

    EXPECT_FALSE(WriteWholeFile(file, "new", Blank));

    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"file.xml"));
    EXPECT_THAT(FileNames(file), IsEmpty());
}

TEST_F(WrittenFile, HasAPath)
{
    EXPECT_FALSE(WriteWholeFile(L"", "new", Blank));
}

// The system doesn't hold every user to the attribute.
HANDLE WINAPI OpenAsAnyUser(const wchar_t* path, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                            DWORD disposition, DWORD flags, HANDLE model)
{
    static auto* const open = SystemFunction<decltype(CreateFileW)>("CreateFileW");
    const DWORD attributes = GetFileAttributesW(path);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0 &&
        (access & GENERIC_WRITE) != 0)
    {
        SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
    }
    return open(path, access, sharing, security, disposition, flags, model);
}

TEST_F(WrittenFile, IsLeftAloneWhenItMayOnlyBeRead)
{
    WriteBytes(file, "old");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    const ImportHook open("CreateFileW", OpenAsAnyUser);

    EXPECT_FALSE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(ReadBytes(file), "old");
    EXPECT_TRUE(Identity().dwFileAttributes & FILE_ATTRIBUTE_READONLY);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

// What couldn't be put back isn't written over.
TEST_F(WrittenFile, IsLeftAloneWhenItIsLongerThanCanBeRead)
{
    constexpr std::int64_t tooLong = std::int64_t{1} << 31;
    WriteBytes(file, "old");
    {
        const FileWriter writer(file);
        writer.SetLength(tooLong);
    }

    EXPECT_FALSE(WriteWholeFile(file, "new", Blank));

    EXPECT_EQ(Identity().nFileSizeLow, tooLong);
}

} // namespace
} // namespace norvepa::test
