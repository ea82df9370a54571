#include "notify/DeviceIdIndex.h"

#include <gmock/gmock.h>
#include <thread>

namespace norvepa
{
namespace
{

// The log device at this place, or "none".
std::wstring DeviceAt(const DeviceIdIndex& index, const std::wstring& deviceId, std::size_t place)
{
    const DeviceIdIndex::Entry* const entry = index.Find(deviceId, place);
    return entry == nullptr ? L"none" : entry->logDevice;
}

TEST(DeviceIdIndex, IsNotValidWhileNothingWasAdded)
{
    DeviceIdIndex index;

    EXPECT_FALSE(index.IsValid());
    EXPECT_EQ(index.Find(L"*A", 0), nullptr);
}

TEST(DeviceIdIndex, IsValidOnceSomethingWasAdded)
{
    DeviceIdIndex index;

    index.Add(L"*A", L"Pumpe", L"1");

    EXPECT_TRUE(index.IsValid());
    const DeviceIdIndex::Entry* const entry = index.Find(L"*A", 0);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->logDevice, L"Pumpe");
    EXPECT_EQ(entry->unit, L"1");
}

TEST(DeviceIdIndex, KeepsTheOrderWithinOneIdentity)
{
    DeviceIdIndex index;

    index.Add(L"*A", L"Pumpe", L"1");
    index.Add(L"*B", L"Presse", L"1");
    index.Add(L"*A", L"Band", L"2");
    index.Add(L"*A", L"Band", L"2");

    EXPECT_EQ(DeviceAt(index, L"*A", 0), L"Pumpe");
    EXPECT_EQ(DeviceAt(index, L"*A", 1), L"Band");
    EXPECT_EQ(DeviceAt(index, L"*A", 2), L"Band");
    EXPECT_EQ(DeviceAt(index, L"*A", 3), L"none");
    EXPECT_EQ(DeviceAt(index, L"*B", 0), L"Presse");
    EXPECT_EQ(DeviceAt(index, L"*B", 0xFFFFFFFF), L"none");
}

TEST(DeviceIdIndex, AddsNothingThatIsIncomplete)
{
    DeviceIdIndex index;

    index.Add(L"", L"Pumpe", L"1");
    index.Add(L"*A", L"", L"1");
    index.Add(L"*A", L"Pumpe", L"");

    EXPECT_FALSE(index.IsValid());
    EXPECT_EQ(index.Find(L"", 0), nullptr);
    EXPECT_EQ(index.Find(L"*A", 0), nullptr);
}

TEST(DeviceIdIndex, StaysValidWhenSomethingIncompleteFollows)
{
    DeviceIdIndex index;

    index.Add(L"*A", L"Pumpe", L"1");
    index.Add(L"*A", L"Band", L"");

    EXPECT_TRUE(index.IsValid());
    EXPECT_EQ(DeviceAt(index, L"*A", 1), L"none");
}

TEST(DeviceIdIndex, TellsIdentitiesApartWithoutRegardToCase)
{
    DeviceIdIndex index;

    index.Add(L"*a\u00E4", L"Pumpe", L"1");
    index.Add(L"*A\u00C4", L"Band", L"2");

    EXPECT_EQ(DeviceAt(index, L"*A\u00E4", 0), L"Pumpe");
    EXPECT_EQ(DeviceAt(index, L"*a\u00C4", 1), L"Band");
}

TEST(DeviceIdIndex, TakesALeadingStarForAPartOfTheIdentity)
{
    DeviceIdIndex index;

    index.Add(L"*A", L"Pumpe", L"1");

    EXPECT_EQ(DeviceAt(index, L"A", 0), L"none");
}

TEST(DeviceIdIndex, TellsIdentitiesApartByTheirFirst260Characters)
{
    const std::wstring common(259, L'n');
    DeviceIdIndex index;

    index.Add(common + L"a", L"Pumpe", L"1");

    EXPECT_EQ(DeviceAt(index, common + L"a and more", 0), L"Pumpe");
    EXPECT_EQ(DeviceAt(index, common + L"b", 0), L"none");
    EXPECT_EQ(DeviceAt(index, common, 0), L"none");
}

TEST(DeviceIdIndex, IsEmptiedWhenItIsLookedAtAfterItWentStale)
{
    DeviceIdIndex index;
    index.Add(L"*A", L"Pumpe", L"1");

    index.MarkStale();

    EXPECT_FALSE(index.IsValid());
    EXPECT_EQ(DeviceAt(index, L"*A", 0), L"none");
}

TEST(DeviceIdIndex, IsUsableAgainOnceItWasRebuilt)
{
    DeviceIdIndex index;
    index.Add(L"*A", L"Pumpe", L"1");
    index.MarkStale();
    ASSERT_FALSE(index.IsValid());

    index.Add(L"*A", L"Band", L"2");

    EXPECT_TRUE(index.IsValid());
    EXPECT_EQ(DeviceAt(index, L"*A", 0), L"Band");
    EXPECT_EQ(DeviceAt(index, L"*A", 1), L"none");
}

TEST(DeviceIdIndex, IsStaleWhenItWentSoWhileItWasRebuilt)
{
    DeviceIdIndex index;
    ASSERT_FALSE(index.IsValid());
    index.Add(L"*A", L"Pumpe", L"1");
    index.MarkStale();
    index.Add(L"*A", L"Band", L"2");

    EXPECT_FALSE(index.IsValid());
    EXPECT_EQ(DeviceAt(index, L"*A", 0), L"none");
}

TEST(DeviceIdIndex, MayBeMarkedWhileAnotherThreadHoldsIt)
{
    const std::lock_guard lock(deviceIdMutex);
    static_cast<void>(deviceIdIndex.IsValid());
    deviceIdIndex.Add(L"*A", L"Pumpe", L"1");

    std::thread([] { deviceIdIndex.MarkStale(); }).join();

    EXPECT_FALSE(deviceIdIndex.IsValid());
}

} // namespace
} // namespace norvepa
