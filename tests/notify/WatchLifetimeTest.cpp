#include "WatchScene.h"
#include "support/Eventually.h"

#include <thread>

namespace norvepa::test
{
namespace
{

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class WatchLifetime : public WatchScene
{
protected:
    [[nodiscard]] Result Init() const { return initWatchDirectories(roots.data()); }
};

TEST_F(WatchLifetime, BeginsWithAWatchOnFileNamesOfEachFolder)
{
    EXPECT_EQ(Init(), PGSP_OK);

    const std::vector<OpenedWatch> opened = calls.opened();
    ASSERT_THAT(opened, SizeIs(2));
    EXPECT_EQ(opened[0].folder, logDevices());
    EXPECT_EQ(opened[1].folder, logNames());
    for (const OpenedWatch& watch : opened)
    {
        EXPECT_EQ(watch.subtree, FALSE);
        EXPECT_EQ(watch.filter, DWORD{FILE_NOTIFY_CHANGE_FILE_NAME});
    }
}

TEST_F(WatchLifetime, BeginsOnce)
{
    EXPECT_EQ(Init(), PGSP_OK);
    EXPECT_EQ(Init(), PGSP_OK);
    EXPECT_EQ(Poll(), PGSP_OK);

    EXPECT_THAT(calls.opened(), SizeIs(2));
    EXPECT_THAT(calls.closed(), IsEmpty());
}

TEST_F(WatchLifetime, BeginsWithTheFirstQuery)
{
    static_cast<void>(Listing(boards()));

    EXPECT_THAT(calls.opened(), SizeIs(2));
}

TEST_F(WatchLifetime, EndsWithBothHandlesClosed)
{
    ASSERT_EQ(Init(), PGSP_OK);
    const std::vector<OpenedWatch> opened = calls.opened();

    deinitWatchDirectories();

    EXPECT_THAT(calls.closed(), UnorderedElementsAre(opened[0].handle, opened[1].handle));
}

TEST_F(WatchLifetime, EndsOnce)
{
    ASSERT_EQ(Init(), PGSP_OK);

    deinitWatchDirectories();
    deinitWatchDirectories();

    EXPECT_THAT(calls.closed(), SizeIs(2));
}

TEST_F(WatchLifetime, MayEndAheadOfItsBeginning)
{
    deinitWatchDirectories();

    EXPECT_THAT(calls.closed(), IsEmpty());
    EXPECT_EQ(Poll(), PGSP_OK);
}

TEST_F(WatchLifetime, BeginsAnewAfterItsEnd)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    ASSERT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
    deinitWatchDirectories();

    ASSERT_EQ(Poll(), PGSP_OK);
    MakeFile(logDevices(), L"Presse.xml");
    ASSERT_TRUE(calls.AwaitChange(0));

    EXPECT_THAT(Listing(logDevices()), UnorderedElementsAre(L"Pumpe", L"Presse"));
    EXPECT_THAT(calls.opened(), SizeIs(4));
}

// Nothing tells that a folder changed while nobody watched.
TEST_F(WatchLifetime, LeavesListingsAsTheyAreWhenItEnds)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    ASSERT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));

    deinitWatchDirectories();
    MakeFile(logDevices(), L"Presse.xml");

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
    EXPECT_EQ(calls.scans(logDevices()), 1U);
}

TEST_F(WatchLifetime, IsPolledTwiceAtMostAndWithoutWaiting)
{
    ASSERT_EQ(Init(), PGSP_OK);

    EXPECT_EQ(Poll(), PGSP_OK);

    EXPECT_THAT(calls.timeouts(), SizeIs(2));
    EXPECT_THAT(calls.timeouts(), Each(0U));
}

TEST_F(WatchLifetime, StaysOnTheRootThatItBeganWith)
{
    const StoreRoots second; // names its own root to the registry
    MakeFile(second.data() + L"\\data\\LogDevices", L"Pumpe.xml");
    const auto listingOfSecond = [&] {
        std::shared_ptr<const DirectoryListing> listing;
        EXPECT_EQ(getDirectoryContent(second.data() + L"\\data\\LogDevices", second.data(), listing),
                  PGSP_OK);
        return *listing;
    };
    ASSERT_EQ(Init(), PGSP_OK);
    ASSERT_THAT(listingOfSecond(), ElementsAre(L"Pumpe"));

    WriteBytes(second.logDevice(L"Presse"), "");
    MakeFile(logNames(), L"Band.xml"); // told behind the other, if that were told
    ASSERT_TRUE(calls.AwaitChange(1));
    EXPECT_FALSE(calls.HasChange(0));
    EXPECT_THAT(listingOfSecond(), ElementsAre(L"Pumpe"));

    // A change of the old root is taken for one of the root asked for.
    MakeFile(logDevices(), L"Band.xml");
    ASSERT_TRUE(calls.AwaitChange(0));
    EXPECT_THAT(listingOfSecond(), UnorderedElementsAre(L"Pumpe", L"Presse"));
    EXPECT_THAT(calls.opened(), SizeIs(2));
}

TEST_F(WatchLifetime, GoesToTheNewRootOnceItWasDropped)
{
    const StoreRoots second;
    MakeFile(second.data() + L"\\data\\LogDevices", L"Pumpe.xml");
    ASSERT_EQ(Init(), PGSP_OK);

    deinitWatchDirectories();
    ASSERT_EQ(getDirectoryChange(second.data()), PGSP_OK);
    WriteBytes(second.logDevice(L"Presse"), "");

    EXPECT_TRUE(calls.AwaitChange(0));
    EXPECT_EQ(calls.opened().back().folder, second.data() + L"\\data\\LogNames");
    deinitWatchDirectories();
}

// The system takes back what a thread has asked it to watch when that thread ends.
TEST_F(WatchLifetime, IsLongerThanThatOfTheThreadsThatPoll)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    std::thread([&] { static_cast<void>(Listing(logDevices())); }).join();

    for (const wchar_t* const name : {L"1.xml", L"2.xml", L"3.xml"})
    {
        MakeFile(logDevices(), name);
        const std::size_t files = FileNames(logDevices()).size();
        std::thread([&] {
            EXPECT_TRUE(Eventually([&] { return Listing(logDevices()).size() == files; }));
        }).join();
    }

    EXPECT_THAT(calls.opened(), SizeIs(2));
}

TEST_F(WatchLifetime, TakesARootWithATrailingBackslashAsItIs)
{
    ASSERT_EQ(initWatchDirectories(roots.data() + L"\\"), PGSP_OK);

    EXPECT_EQ(calls.opened().front().folder, roots.data() + L"\\\\data\\LogDevices");
}

TEST_F(WatchLifetime, IsBelowTheCurrentFolderWithoutARoot)
{
    static_cast<void>(initWatchDirectories(L""));

    EXPECT_EQ(calls.opened().front().folder, L"data\\LogDevices");
}

} // namespace
} // namespace norvepa::test
