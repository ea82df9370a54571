#include "win/Handle.h"

#include <windows.h>

#include <cstring>
#include <gmock/gmock.h>
#include <utility>

namespace norvepa::win
{
namespace
{

constexpr DWORD Page = 4096;

Handle NewMapping(DWORD size, DWORD attributes = SEC_COMMIT)
{
    return Handle(
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE | attributes, 0, size, nullptr));
}

TEST(MappedView, OfNoMappingIsEmpty)
{
    const MappedView view(Handle(), FILE_MAP_WRITE, 4);

    EXPECT_FALSE(view);
    EXPECT_EQ(view.get(), nullptr);
    EXPECT_EQ(view.CommittedBytes(), 0U);
}

TEST(MappedView, OfMoreThanTheMappingHoldsIsEmpty)
{
    const Handle mapping = NewMapping(Page);

    const MappedView view(mapping, FILE_MAP_WRITE, SIZE_T{Page} * 2);

    EXPECT_FALSE(view);
}

TEST(MappedView, OutlivesTheHandleOfItsMapping)
{
    MappedView view;

    {
        const Handle mapping = NewMapping(4);
        view = MappedView(mapping, FILE_MAP_WRITE, 4);
    }

    ASSERT_TRUE(view);
    std::memcpy(view.get(), "abcd", 4);
    EXPECT_EQ(std::memcmp(view.get(), "abcd", 4), 0);
}

TEST(MappedView, IsUnmappedWithItsOwner)
{
    const Handle mapping = NewMapping(4);
    const void* address = nullptr;

    {
        MappedView first(mapping, FILE_MAP_WRITE, 4);
        address = first.get();
        const MappedView second(std::move(first));
        EXPECT_EQ(second.get(), address);
    }

    MEMORY_BASIC_INFORMATION pages{};
    ASSERT_NE(VirtualQuery(address, &pages, sizeof pages), 0U);
    EXPECT_EQ(pages.State, static_cast<DWORD>(MEM_FREE));
}

TEST(MappedView, CountsItsCommittedBytesInWholePages)
{
    const Handle small = NewMapping(4);
    const Handle large = NewMapping(Page * 2 + 1);

    EXPECT_EQ(MappedView(small, FILE_MAP_WRITE, 0).CommittedBytes(), Page);
    EXPECT_EQ(MappedView(large, FILE_MAP_WRITE, 0).CommittedBytes(), SIZE_T{Page} * 3);
}

TEST(MappedView, CountsNoBytesWhereThePagesAreOnlyReserved)
{
    const Handle mapping = NewMapping(Page * 4, SEC_RESERVE);

    const MappedView view(mapping, FILE_MAP_WRITE, 0);

    ASSERT_TRUE(view);
    EXPECT_EQ(view.CommittedBytes(), 0U);
}

TEST(MappedView, CountsOnlyThePagesThatAreCommittedAtItsStart)
{
    const Handle mapping = NewMapping(Page * 4, SEC_RESERVE);
    const MappedView view(mapping, FILE_MAP_WRITE, 0);

    ASSERT_NE(VirtualAlloc(view.get(), Page, MEM_COMMIT, PAGE_READWRITE), nullptr);

    EXPECT_EQ(view.CommittedBytes(), Page);
}

} // namespace
} // namespace norvepa::win
