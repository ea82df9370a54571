#include "WatchScene.h"
#include "notify/DeviceIdIndex.h"

#include <mutex>
#include <thread>

namespace norvepa::test
{
namespace
{

class IndexInvalidation : public WatchedPeer
{
protected:
    IndexInvalidation()
    {
        static_cast<void>(Poll());
        FillDeviceIdIndex();
    }
};

TEST_F(IndexInvalidation, ComesNotWithAPollThatSeesNothing)
{
    EXPECT_EQ(Poll(), PGSP_OK);

    EXPECT_TRUE(IsDeviceIdIndexValid());
}

TEST_F(IndexInvalidation, ComesWithAnyChangeOfFileNamesInTheLogDeviceFolder)
{
    const std::wstring pump = roots.logDevice(L"Pumpe");
    const std::pair<const char*, std::wstring> changes[] = {
        {"create", pump},
        {"rename", pump + L"|" + roots.logDevice(L"Band")},
        {"remove", roots.logDevice(L"Band")}};

    for (const auto& [command, paths] : changes)
    {
        FillDeviceIdIndex();
        PeerDoes(command, paths);
        ASSERT_TRUE(calls.AwaitChange(0)) << command;
        EXPECT_EQ(Poll(), PGSP_OK);
        EXPECT_FALSE(IsDeviceIdIndexValid()) << command;
    }
}

TEST_F(IndexInvalidation, ComesNotWithAChangeOfLogNames)
{
    PeerDoes("create", roots.logName(L"Pumpe"));
    ASSERT_TRUE(calls.AwaitChange(1));

    EXPECT_EQ(Poll(), PGSP_OK);

    EXPECT_FALSE(calls.HasChange(1));
    EXPECT_TRUE(IsDeviceIdIndexValid());
}

TEST_F(IndexInvalidation, ComesWithTheListingsPollToo)
{
    PeerDoes("create", roots.logDevice(L"Pumpe"));
    ASSERT_TRUE(calls.AwaitChange(0));

    static_cast<void>(Listing(boards()));

    EXPECT_FALSE(IsDeviceIdIndexValid());
}

TEST_F(IndexInvalidation, ComesNotWithTheEndOfTheWatch)
{
    deinitWatchDirectories();

    EXPECT_TRUE(IsDeviceIdIndexValid());
}

TEST_F(IndexInvalidation, WaitsForNobodyWhoHoldsTheIndex)
{
    PeerDoes("create", roots.logDevice(L"Pumpe"));
    ASSERT_TRUE(calls.AwaitChange(0));

    const std::lock_guard lock(deviceIdMutex);
    Result result = NoListing;
    std::thread([&] { result = Poll(); }).join(); // would wait for ever

    EXPECT_EQ(result, PGSP_OK);
    EXPECT_FALSE(deviceIdIndex.IsValid());
}

TEST_F(IndexInvalidation, IsMetByAPollUnderTheIndexsOwnLock)
{
    PeerDoes("create", roots.logDevice(L"Pumpe"));
    ASSERT_TRUE(calls.AwaitChange(0));

    const std::lock_guard lock(deviceIdMutex);
    EXPECT_EQ(Poll(), PGSP_OK);

    EXPECT_FALSE(deviceIdIndex.IsValid());
}

} // namespace
} // namespace norvepa::test
