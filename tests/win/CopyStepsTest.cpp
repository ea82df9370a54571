#include "support/ImportHook.h"
#include "support/OpenFile.h"
#include "win/CopyScene.h"
#include "win/FileCalls.h"
#include "win/WholeFile.h"

#include <windows.h>

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using win::CopyToNewFile;

using ACopyInTheMaking = CopyScene;

TEST_F(ACopyInTheMaking, LetsGoOfItsSourceBeforeItGoesToTheDisk)
{
    FileCalls calls;
    calls.beforeFlush = [&](HANDLE /*file*/) { EXPECT_NO_THROW(OpenFile(source, 0)); };

    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_THAT(calls.told, testing::Contains("flush"));
}

TEST_F(ACopyInTheMaking, MayBeRemovedUntilItIsInItsPlace)
{
    SetFileAttributesW(source.c_str(), FILE_ATTRIBUTE_READONLY);
    FileCalls calls;
    calls.beforeMove = [&] {
        for (const std::wstring& name : FileNames(folder.path()))
        {
            const DWORD attributes = GetFileAttributesW((folder / name).c_str());
            EXPECT_TRUE(name == L"source.xml" || (attributes & FILE_ATTRIBUTE_READONLY) == 0);
        }
    };

    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_TRUE(Data(copy).dwFileAttributes & FILE_ATTRIBUTE_READONLY);
}

TEST_F(ACopyInTheMaking, DoesNotTakeThePlaceOfAnotherThatIsMadeMeanwhile)
{
    FileCalls calls;
    calls.beforeMove = [&] { WriteBytes(copy, "another"); };

    EXPECT_FALSE(CopyToNewFile(source, copy));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_EXISTS});
    EXPECT_EQ(ReadBytes(copy), "another");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"copy.xml", L"source.xml"));
}

TEST_F(ACopyInTheMaking, IsNotThereBeforeItIsWholeAndOnTheDisk)
{
    FileCalls calls;
    calls.beforeMove = [&] { EXPECT_FALSE(Exists(copy)); };

    EXPECT_TRUE(CopyToNewFile(source, copy));

    EXPECT_THAT(calls.told, ElementsAre("write 5", "write 0", "flush", "move"));
}

TEST_F(ACopyInTheMaking, IsNotThereWhenTheDiskTakesAPart)
{
    FileCalls calls;
    calls.roomForNextWrite = 2;

    EXPECT_FALSE(CopyToNewFile(source, copy));

    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"source.xml"));
}

BOOL WINAPI ReadNothing(HANDLE /*file*/, void* /*bytes*/, DWORD /*size*/, DWORD* /*read*/,
                        OVERLAPPED* /*place*/)
{
    SetLastError(ERROR_CRC);
    return FALSE;
}

TEST_F(ACopyInTheMaking, IsNotThereWhenItsSourceCanNotBeReadToItsEnd)
{
    const ImportHook reading("ReadFile", ReadNothing);

    EXPECT_FALSE(CopyToNewFile(source, copy));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_CRC});
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"source.xml"));
}

} // namespace
} // namespace norvepa::test
