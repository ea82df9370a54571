#include "WatchScene.h"
#include "support/Eventually.h"

#include <algorithm>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class DirectoryChange : public WatchedPeer
{
protected:
    DirectoryChange()
    {
        MakeFile(logDevices(), L"Pumpe.xml");
        MakeFile(logNames(), L"Presse.xml");
        static_cast<void>(Listing(logDevices())); // cached, and watched from here on
        static_cast<void>(Listing(logNames()));
    }

    [[nodiscard]] bool EventuallyListed(const std::wstring& folder, Names expected) const
    {
        std::sort(expected.begin(), expected.end());
        return Eventually([&] {
            Names listed = Listing(folder);
            std::sort(listed.begin(), listed.end());
            return listed == expected;
        });
    }
};

TEST_F(DirectoryChange, ShowsAFileThatAnotherProcessMade)
{
    PeerDoes("create", roots.logDevice(L"Band"));
    EXPECT_TRUE(EventuallyListed(logDevices(), {L"Band", L"Pumpe"}));

    PeerDoes("create", roots.logName(L"Band"));
    EXPECT_TRUE(EventuallyListed(logNames(), {L"Band", L"Presse"}));
}

TEST_F(DirectoryChange, HidesAFileThatAnotherProcessRemoved)
{
    PeerDoes("create", roots.logDevice(L"Band") + L"|" + roots.logName(L"Band"));
    ASSERT_TRUE(EventuallyListed(logDevices(), {L"Band", L"Pumpe"}));
    ASSERT_TRUE(EventuallyListed(logNames(), {L"Band", L"Presse"}));

    PeerDoes("remove", roots.logDevice(L"Pumpe") + L"|" + roots.logName(L"Presse"));

    EXPECT_TRUE(EventuallyListed(logDevices(), {L"Band"}));
    EXPECT_TRUE(EventuallyListed(logNames(), {L"Band"}));
}

TEST_F(DirectoryChange, HidesTheLastFileToo)
{
    PeerDoes("remove", roots.logDevice(L"Pumpe"));

    EXPECT_TRUE(EventuallyListed(logDevices(), {}));
}

TEST_F(DirectoryChange, ShowsTheNewNameOfAFile)
{
    PeerDoes("rename", roots.logDevice(L"Pumpe") + L"|" + roots.logDevice(L"Motor"));

    EXPECT_TRUE(EventuallyListed(logDevices(), {L"Motor"}));
}

TEST_F(DirectoryChange, IsSeenInBothFoldersByOnePoll)
{
    PeerDoes("create", roots.logDevice(L"Band") + L"|" + roots.logName(L"Band"));
    ASSERT_TRUE(calls.AwaitChange(0));
    ASSERT_TRUE(calls.AwaitChange(1));

    EXPECT_EQ(Poll(), PGSP_OK);

    EXPECT_FALSE(calls.HasChange(0));
    EXPECT_FALSE(calls.HasChange(1));
    EXPECT_EQ(Listing(logDevices()).size(), 2U);
    EXPECT_EQ(Listing(logNames()).size(), 2U);
}

TEST_F(DirectoryChange, IsNoneWhenOnlyTheContentOfAFileChanges)
{
    PeerDoes("append", roots.logDevice(L"Pumpe"));
    PeerDoes("create", roots.logName(L"Band")); // told behind the other, if that were told
    ASSERT_TRUE(calls.AwaitChange(1));

    EXPECT_FALSE(calls.HasChange(0));
    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
    EXPECT_EQ(calls.scans(logDevices()), 1U);
}

TEST_F(DirectoryChange, IsNoneWhenItIsInAFolderBelow)
{
    PeerDoes("create", logDevices() + L"\\below\\Band.xml");
    PeerDoes("create", roots.logName(L"Band"));
    ASSERT_TRUE(calls.AwaitChange(1));

    static_cast<void>(Poll());
    PeerDoes("create", logDevices() + L"\\below\\Motor.xml");
    PeerDoes("create", roots.logName(L"Motor"));
    ASSERT_TRUE(calls.AwaitChange(1));

    EXPECT_FALSE(calls.HasChange(0));
}

TEST_F(DirectoryChange, DropsTheListingOfItsFolderAlone)
{
    PeerDoes("create", roots.logName(L"Band"));
    ASSERT_TRUE(EventuallyListed(logNames(), {L"Band", L"Presse"}));

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
    EXPECT_EQ(calls.scans(logDevices()), 1U);
    EXPECT_EQ(calls.scans(logNames()), 2U);
}

TEST_F(DirectoryChange, DropsAListingHoweverItsPathWasSpelled)
{
    std::wstring upper = roots.data();
    CharUpperW(upper.data());
    PeerDoes("create", roots.logDevice(L"Band"));
    ASSERT_TRUE(calls.AwaitChange(0));

    ASSERT_EQ(getDirectoryChange(upper), PGSP_OK);

    EXPECT_EQ(Listing(logDevices()).size(), 2U);
}

TEST_F(DirectoryChange, IsSeenEachTimeAnew)
{
    Names expected{L"Pumpe"};
    for (const wchar_t* const name : {L"1", L"2", L"3", L"4"})
    {
        expected.emplace_back(name);
        PeerDoes("create", roots.logDevice(name));
        EXPECT_TRUE(EventuallyListed(logDevices(), expected)) << ToUtf8(name);
    }
}

TEST_F(DirectoryChange, OfThisProcessIsSeenToo)
{
    MakeFile(logDevices(), L"Band.xml");

    EXPECT_TRUE(EventuallyListed(logDevices(), {L"Band", L"Pumpe"}));
}

TEST_F(DirectoryChange, LeavesAListingThatACallerStillHasAsItIs)
{
    std::shared_ptr<const DirectoryListing> before;
    ASSERT_EQ(getDirectoryContent(logDevices(), roots.data(), before), PGSP_OK);

    PeerDoes("create", roots.logDevice(L"Band"));
    ASSERT_TRUE(EventuallyListed(logDevices(), {L"Band", L"Pumpe"}));

    EXPECT_THAT(*before, ElementsAre(L"Pumpe"));
}

} // namespace
} // namespace norvepa::test
