#include "win/FileSystem.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <utility>
#include <vector>

namespace norvepa::win
{
namespace
{

using test::WriteBytes;

constexpr DWORD Patience = 60'000; // milliseconds

bool IsTold(const ChangeNotification& notification, DWORD patience)
{
    return WaitForSingleObject(notification.get(), patience) == WAIT_OBJECT_0;
}

bool IsOpen(HANDLE handle)
{
    DWORD flags = 0;
    return GetHandleInformation(handle, &flags) != FALSE;
}

class ChangeNotificationOfAFolder : public testing::Test
{
protected:
    test::TemporaryFolder folder;
};

TEST_F(ChangeNotificationOfAFolder, IsEmptyAtFirstAndForAFolderThatIsNotThere)
{
    EXPECT_FALSE(ChangeNotification());
    EXPECT_FALSE(ChangeNotification(folder / L"gone"));
    EXPECT_EQ(ChangeNotification().get(), INVALID_HANDLE_VALUE);
}

TEST_F(ChangeNotificationOfAFolder, TellsOfANewFile)
{
    const ChangeNotification notification(folder.path());
    ASSERT_TRUE(notification);
    EXPECT_FALSE(IsTold(notification, 0));

    WriteBytes(folder / L"a.xml", "");

    EXPECT_TRUE(IsTold(notification, Patience));
}

TEST_F(ChangeNotificationOfAFolder, TellsUntilItIsRearmedAndThenOfTheNext)
{
    const ChangeNotification notification(folder.path());
    WriteBytes(folder / L"a.xml", "");
    ASSERT_TRUE(IsTold(notification, Patience));
    EXPECT_TRUE(IsTold(notification, 0));

    EXPECT_TRUE(notification.Rearm());
    EXPECT_FALSE(IsTold(notification, 0));

    WriteBytes(folder / L"b.xml", "");
    EXPECT_TRUE(IsTold(notification, Patience));
}

TEST_F(ChangeNotificationOfAFolder, CanNotBeRearmedWhenItIsEmpty)
{
    EXPECT_FALSE(ChangeNotification().Rearm());
}

TEST_F(ChangeNotificationOfAFolder, TellsNothingOfContents)
{
    WriteBytes(folder / L"a.xml", "");
    const ChangeNotification contents(folder.path());
    const test::TemporaryFolder other;
    const ChangeNotification names(other.path());

    WriteBytes(folder / L"a.xml", "more");
    WriteBytes(other / L"b.xml", ""); // told behind the other, if that were told

    EXPECT_TRUE(IsTold(names, Patience));
    EXPECT_FALSE(IsTold(contents, 0));
}

TEST_F(ChangeNotificationOfAFolder, IsClosedWithItsOwner)
{
    HANDLE handle = nullptr;
    {
        const ChangeNotification notification(folder.path());
        handle = notification.get();
        EXPECT_TRUE(IsOpen(handle));
    }

    EXPECT_FALSE(IsOpen(handle));
}

TEST_F(ChangeNotificationOfAFolder, GoesToItsNewOwner)
{
    ChangeNotification first(folder.path());
    const HANDLE handle = first.get();
    ChangeNotification second(std::move(first));
    ChangeNotification third;

    third = std::move(second);

    EXPECT_EQ(third.get(), handle);
    EXPECT_TRUE(IsOpen(handle));
}

class FileSearchInAFolder : public testing::Test
{
protected:
    [[nodiscard]] std::vector<std::wstring> Found(const std::wstring& pattern) const
    {
        std::vector<std::wstring> names;
        FileSearch search(folder / pattern);
        for (bool found = static_cast<bool>(search); found; found = search.Next())
        {
            names.emplace_back(search.name());
        }
        return names;
    }

    test::TemporaryFolder folder;
};

TEST_F(FileSearchInAFolder, FindsWhatThePatternMatches)
{
    WriteBytes(folder / L"a.xml", "");
    WriteBytes(folder / L"B.XML", "");
    WriteBytes(folder / L"c.txt", "");

    EXPECT_THAT(Found(L"*.xml"), testing::UnorderedElementsAre(L"a.xml", L"B.XML"));
}

TEST_F(FileSearchInAFolder, IsEmptyWhereNothingMatches)
{
    EXPECT_THAT(Found(L"*.xml"), testing::IsEmpty());
    EXPECT_THAT(Found(L"gone\\*.xml"), testing::IsEmpty());
}

TEST_F(FileSearchInAFolder, LeavesNothingOpen)
{
    WriteBytes(folder / L"a.xml", "");
    for (int i = 0; i < 100; ++i)
    {
        const FileSearch search(folder / L"*.xml");
        EXPECT_TRUE(search);
    }

    EXPECT_NE(DeleteFileW((folder / L"a.xml").c_str()), FALSE);
    EXPECT_NE(RemoveDirectoryW(folder.path().c_str()), FALSE);
    test::MakeFolders(folder.path());
}

} // namespace
} // namespace norvepa::win
