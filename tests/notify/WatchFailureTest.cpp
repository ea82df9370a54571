#include "WatchScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

BOOL WINAPI FailsToRearm(HANDLE)
{
    return FALSE;
}

class WatchFailure : public WatchScene
{
protected:
    // Cached, and watched from here on.
    void ListBoth()
    {
        MakeFile(logDevices(), L"Pumpe.xml");
        MakeFile(logNames(), L"Presse.xml");
        MakeFile(boards(), L"Karte.xml");
        ASSERT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
        ASSERT_THAT(Listing(logNames()), ElementsAre(L"Presse"));
        ASSERT_THAT(Listing(boards()), ElementsAre(L"Karte"));
        FillDeviceIdIndex();
    }

    void ChangeLogDevices() const
    {
        MakeFile(logDevices(), L"Band.xml");
        ASSERT_TRUE(calls.AwaitChange(0));
    }

    void ChangeLogNames() const
    {
        MakeFile(logNames(), L"Band.xml");
        ASSERT_TRUE(calls.AwaitChange(1));
    }
};

TEST_F(WatchFailure, IsAMissingLogDeviceFolder)
{
    fs::remove(logDevices());

    EXPECT_EQ(initWatchDirectories(roots.data()), NoListing);
    EXPECT_THAT(calls.opened(), SizeIs(1));
    EXPECT_THAT(calls.closed(), IsEmpty());

    EXPECT_EQ(initWatchDirectories(roots.data()), NoListing);
    EXPECT_THAT(calls.opened(), SizeIs(2));
}

TEST_F(WatchFailure, IsAMissingLogNameFolderAndClosesTheOtherWatch)
{
    fs::remove(logNames());

    EXPECT_EQ(initWatchDirectories(roots.data()), NoListing);

    ASSERT_THAT(calls.opened(), SizeIs(2));
    EXPECT_THAT(calls.closed(), ElementsAre(calls.opened().front().handle));
}

TEST_F(WatchFailure, EndsWhenTheFoldersAreThere)
{
    fs::remove(logDevices());
    fs::remove(logNames());
    ASSERT_EQ(Poll(), NoListing);

    MakeFolders(logDevices());
    ASSERT_EQ(Poll(), NoListing);
    MakeFolders(logNames());

    EXPECT_EQ(Poll(), PGSP_OK);
}

TEST_F(WatchFailure, LeavesNothingInTheCache)
{
    MakeFile(boards(), L"Karte.xml");
    fs::remove(logNames());

    for (std::size_t i = 1; i <= 3; ++i)
    {
        EXPECT_THAT(Listing(boards()), ElementsAre(L"Karte"));
        EXPECT_EQ(calls.scans(boards()), i);
    }

    MakeFile(boards(), L"Neu.xml");
    EXPECT_THAT(Listing(boards()), UnorderedElementsAre(L"Karte", L"Neu"));
}

TEST_F(WatchFailure, DropsTheIndexEachTime)
{
    fs::remove(logDevices());

    for (int i = 0; i < 2; ++i)
    {
        FillDeviceIdIndex();
        ASSERT_TRUE(IsDeviceIdIndexValid());
        EXPECT_EQ(Poll(), NoListing);
        EXPECT_FALSE(IsDeviceIdIndexValid());
    }
}

TEST_F(WatchFailure, ToGoOnWithLogDevicesEndsTheWatch)
{
    ListBoth();
    ChangeLogDevices();
    {
        const ImportHook broken("FindNextChangeNotification", FailsToRearm);
        EXPECT_EQ(Poll(), NoListing);
    }

    EXPECT_THAT(calls.closed(), SizeIs(2));
    EXPECT_FALSE(IsDeviceIdIndexValid());
    EXPECT_THAT(Listing(logDevices()), UnorderedElementsAre(L"Pumpe", L"Band"));
    EXPECT_THAT(calls.opened(), SizeIs(4));
    EXPECT_EQ(calls.scans(logNames()) + calls.scans(boards()), 2U);
}

TEST_F(WatchFailure, ToGoOnWithLogNamesEndsTheWatchAndLeavesTheIndex)
{
    ListBoth();
    ChangeLogNames();
    {
        const ImportHook broken("FindNextChangeNotification", FailsToRearm);
        EXPECT_EQ(Poll(), NoListing);
    }

    EXPECT_THAT(calls.closed(), SizeIs(2));
    EXPECT_TRUE(IsDeviceIdIndexValid());
    EXPECT_THAT(Listing(logNames()), UnorderedElementsAre(L"Presse", L"Band"));
    EXPECT_THAT(calls.opened(), SizeIs(4));
    EXPECT_EQ(calls.scans(logDevices()) + calls.scans(boards()), 2U);
}

TEST_F(WatchFailure, InTheFirstPassLeavesNoSecond)
{
    ListBoth();
    ChangeLogDevices();
    const std::size_t waitsBefore = calls.waits();
    const ImportHook broken("FindNextChangeNotification", FailsToRearm);

    EXPECT_EQ(Poll(), NoListing);

    EXPECT_EQ(calls.waits(), waitsBefore + 1);
}

TEST_F(WatchFailure, IsToldToNoCallerOfAListing)
{
    ListBoth();
    ChangeLogDevices();
    const ImportHook broken("FindNextChangeNotification", FailsToRearm);
    std::shared_ptr<const DirectoryListing> listing;

    EXPECT_EQ(getDirectoryContent(logDevices(), roots.data(), listing), PGSP_OK);

    EXPECT_THAT(*listing, UnorderedElementsAre(L"Pumpe", L"Band"));
}

TEST_F(WatchFailure, ByBrokenHandlesDropsEverythingAndIsMended)
{
    ListBoth();
    for (const OpenedWatch& watch : calls.opened())
    {
        ASSERT_NE(CloseHandle(watch.handle), FALSE);
    }
    MakeFile(boards(), L"Neu.xml");

    EXPECT_EQ(Poll(), NoListing);

    EXPECT_FALSE(IsDeviceIdIndexValid());
    EXPECT_THAT(Listing(boards()), UnorderedElementsAre(L"Karte", L"Neu"));
    EXPECT_THAT(calls.opened(), SizeIs(4));
    ChangeLogDevices();
    EXPECT_THAT(Listing(logDevices()), UnorderedElementsAre(L"Pumpe", L"Band"));
}

} // namespace
} // namespace norvepa::test
