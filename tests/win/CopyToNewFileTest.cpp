#include "support/AtNextPause.h"
#include "support/FileWriter.h"
#include "support/OpenFile.h"
#include "win/CopyScene.h"
#include "win/MadeFiles.h"
#include "win/WholeFile.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <optional>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using win::CopyToNewFile;

using ACopiedFile = CopyScene;

TEST_F(ACopiedFile, HoldsTheBytesOfItsSource)
{
    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_EQ(ReadBytes(copy), "bytes");
    EXPECT_EQ(ReadBytes(source), "bytes");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"copy.xml", L"source.xml"));
}

TEST_F(ACopiedFile, MayBeOfAnyLength)
{
    constexpr std::size_t piece = 16 * 1024;
    for (const std::size_t length : {std::size_t{0}, piece - 1, piece, piece + 1, std::size_t{100'000}})
    {
        const std::wstring destination = folder / (std::to_wstring(length) + L".xml");
        std::string bytes;
        for (std::size_t i = 0; i < length; ++i)
        {
            bytes += static_cast<char>(i * 31 >> 4);
        }
        WriteBytes(source, bytes);

        EXPECT_TRUE(CopyToNewFile(source, destination));

        EXPECT_TRUE(ReadBytes(destination) == bytes) << length;
    }
}

TEST_F(ACopiedFile, HasTheWriteTimeOfItsSource)
{
    constexpr FILETIME longAgo{0x12345680, 0x01C00000};
    SetWriteTime(longAgo);

    EXPECT_TRUE(CopyToNewFile(source, copy));

    const FILETIME expected = Data(source).ftLastWriteTime;
    EXPECT_EQ(expected.dwHighDateTime, longAgo.dwHighDateTime);
    const FILETIME written = Data(copy).ftLastWriteTime;
    EXPECT_EQ(CompareFileTime(&written, &expected), 0);
}

TEST_F(ACopiedFile, HasTheAttributesOfItsSource)
{
    SetFileAttributesW(source.c_str(), FILE_ATTRIBUTE_HIDDEN);

    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_TRUE(Data(copy).dwFileAttributes & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(Data(copy).dwFileAttributes, Data(source).dwFileAttributes);
}

TEST_F(ACopiedFile, MayOnlyBeReadWhenItsSourceMay)
{
    SetFileAttributesW(source.c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_TRUE(Data(copy).dwFileAttributes & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(ReadBytes(copy), "bytes");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"copy.xml", L"source.xml"));
}

// There is no room beside it then.
TEST_F(ACopiedFile, IsLikeItsSourceAlsoUnderTheLongestPath)
{
    const std::wstring longest = PathOfLength(folder, 259);
    SetWriteTime({0x12345680, 0x01C00000});
    SetFileAttributesW(source.c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_TRUE(CopyToNewFile(source, longest));

    const FILETIME expected = Data(source).ftLastWriteTime;
    const FILETIME written = Data(longest).ftLastWriteTime;
    EXPECT_EQ(CompareFileTime(&written, &expected), 0);
    EXPECT_TRUE(Data(longest).dwFileAttributes & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(ReadBytes(longest), "bytes");
    SetFileAttributesW(longest.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(ACopiedFile, HasASource)
{
    EXPECT_FALSE(CopyToNewFile(folder / L"missing.xml", copy));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_FALSE(Exists(copy));
}

// What were left beside its place could not be removed by the next one.
TEST_F(ACopiedFile, IsNotMadeOfAFolder)
{
    EXPECT_FALSE(CopyToNewFile(folder.path(), copy));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"source.xml"));
}

TEST_F(ACopiedFile, DoesNotTakeThePlaceOfAnother)
{
    WriteBytes(copy, "another");

    EXPECT_FALSE(CopyToNewFile(source, copy));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_EXISTS});
    EXPECT_EQ(ReadBytes(copy), "another");
}

TEST_F(ACopiedFile, HasAFolder)
{
    EXPECT_FALSE(CopyToNewFile(source, folder / L"gone\\copy.xml"));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
}

TEST_F(ACopiedFile, IsNotMadeOfASourceThatSomebodyKeepsToHimself)
{
    const OpenFile holder(source, 0);

    EXPECT_FALSE(CopyToNewFile(source, copy));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    EXPECT_FALSE(Exists(copy));
}

TEST_F(ACopiedFile, IsMadeOnceItsSourceIsFree)
{
    std::optional<OpenFile> holder(std::in_place, source, 0);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_TRUE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(copy), "bytes");
}

TEST_F(ACopiedFile, IsMadeWhileOthersReadAndWriteItsSource)
{
    const OpenFile reader(source, FILE_SHARE_READ | FILE_SHARE_WRITE);
    const FileWriter writer(source);

    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_EQ(ReadBytes(copy), "bytes");
}

} // namespace
} // namespace norvepa::test
