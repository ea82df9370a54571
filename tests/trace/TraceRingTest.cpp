#include "trace/TraceRing.h"

#include "RingViewer.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <string>

namespace norvepa
{

namespace
{

using Viewer = test::RingViewer;

TEST(TraceRing, NewRingHasItsHeader)
{
    const auto ring = TraceRing::Attach(1000, nullptr);
    ASSERT_TRUE(ring);
    const Viewer viewer;

    EXPECT_EQ(viewer.Word(0), 0u);
    EXPECT_EQ(viewer.Word(4), 1000u);
    EXPECT_EQ(viewer.Word(8), 0u);
    EXPECT_EQ(viewer.Word(12), 1u);
    EXPECT_EQ(viewer.Word(16), 1u);
    EXPECT_EQ(viewer.Word(20), 1u);
    for (std::size_t offset = 24; offset < 68; offset += 4)
    {
        EXPECT_EQ(viewer.Word(offset), 0u) << offset;
    }
}

TEST(TraceRing, LineGoesToByte64WithCarriageReturnAndLineFeed)
{
    auto ring = TraceRing::Attach(1000, nullptr);
    ring->Write("first");
    ring->Write("second");
    const Viewer viewer;

    EXPECT_EQ(viewer.Data(15), "first\r\nsecond\r\n");
    EXPECT_EQ(viewer.Word(0), 15u);
    EXPECT_EQ(viewer.Word(8), 0u);
}

TEST(TraceRing, WhatDoesNotFitGoesToTheStartAndCountsAsAWrap)
{
    auto ring = TraceRing::Attach(10, nullptr);
    ring->Write("123456");
    ring->Write("abcdef");
    const Viewer viewer;

    EXPECT_EQ(viewer.Data(10), "cdef\r\n\r\nab");
    EXPECT_EQ(viewer.Word(0), 6u);
    EXPECT_EQ(viewer.Word(8), 1u);
}

TEST(TraceRing, LineThatEndsAtTheEndDoesNotWrapYet)
{
    auto ring = TraceRing::Attach(10, nullptr);
    const Viewer viewer;

    ring->Write("12345678");
    EXPECT_EQ(viewer.Word(0), 10u);
    EXPECT_EQ(viewer.Word(8), 0u);

    ring->Write("ab");
    EXPECT_EQ(viewer.Data(10), "ab\r\n5678\r\n");
    EXPECT_EQ(viewer.Word(0), 4u);
    EXPECT_EQ(viewer.Word(8), 1u);
}

TEST(TraceRing, WrapCountStopsAtAllBitsSet)
{
    auto ring = TraceRing::Attach(10, nullptr);
    Viewer viewer;
    viewer.SetWord(8, 0xFFFFFFFE);

    ring->Write("12345678");
    ring->Write("12345678");
    EXPECT_EQ(viewer.Word(8), 0xFFFFFFFF);

    ring->Write("12345678");
    EXPECT_EQ(viewer.Word(8), 0xFFFFFFFF);
}

TEST(TraceRing, LineLongerThanTheRingIsCutToIt)
{
    auto ring = TraceRing::Attach(10, nullptr);
    Viewer viewer;
    viewer.SetWord(64 + 10, 0xAAAAAAAA);

    ring->Write("abcdefghijklmnop");

    EXPECT_EQ(viewer.Data(10), "abcdefghij");
    EXPECT_EQ(viewer.Word(64 + 10), 0xAAAAAAAA);
    EXPECT_EQ(viewer.Word(0), 10u);
}

TEST(TraceRing, DisabledRingTakesNothing)
{
    auto ring = TraceRing::Attach(1000, nullptr);
    Viewer viewer;

    viewer.SetByte(12, 0);
    ring->Write("line");
    EXPECT_EQ(viewer.Word(0), 0u);

    viewer.SetByte(12, 7);
    ring->Write("line");
    EXPECT_EQ(viewer.Data(6), "line\r\n");
}

TEST(TraceRing, ExistingRingKeepsItsSizeAndCountsTheWriter)
{
    const auto first = TraceRing::Attach(10, nullptr);
    auto second = TraceRing::Attach(1000, nullptr);
    ASSERT_TRUE(first && second);
    const Viewer viewer;

    second->Write("123456");
    second->Write("abcdef");

    EXPECT_EQ(viewer.Word(4), 10u);
    EXPECT_EQ(viewer.Word(16), 2u);
    EXPECT_EQ(viewer.Data(10), "cdef\r\n\r\nab");
}

TEST(TraceRing, ExistingRingOfAnotherVersionIsNotUsed)
{
    Viewer viewer;
    viewer.FillHeader(1000);
    viewer.SetWord(20, 2);

    EXPECT_FALSE(TraceRing::Attach(1000, nullptr));
    EXPECT_EQ(viewer.Word(16), 1u);
}

TEST(TraceRing, ExistingRingThatClaimsMoreThanItsMappingIsNotUsed)
{
    Viewer viewer(4096);

    viewer.FillHeader(4096 - 64 + 1);
    EXPECT_FALSE(TraceRing::Attach(1000, nullptr));

    viewer.FillHeader(0xFFFFFFFF);
    EXPECT_FALSE(TraceRing::Attach(1000, nullptr));

    viewer.FillHeader(4096 - 64);
    EXPECT_TRUE(TraceRing::Attach(1000, nullptr));
}

TEST(TraceRing, MappingWithoutMemoryBehindItIsNotUsed)
{
    const win::Handle reserved(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE | SEC_RESERVE,
                                                  0, 65'536, "Global\\NorvSDD_Trace"));
    ASSERT_TRUE(reserved);

    EXPECT_FALSE(TraceRing::Attach(1000, nullptr));
}

TEST(TraceRing, WritePositionBeyondTheRingCountsAsItsStart)
{
    auto ring = TraceRing::Attach(100, nullptr);
    Viewer viewer;

    for (const std::uint32_t position : {101u, 0x7FFFFFFFu, 0xFFFFFFFFu})
    {
        viewer.SetWord(0, position);
        ring->Write("line");
        EXPECT_EQ(viewer.Data(6), "line\r\n");
        EXPECT_EQ(viewer.Word(0), 6u);
    }
}

TEST(TraceRing, SizeThatIsChangedLaterIsNotBelieved)
{
    auto ring = TraceRing::Attach(10, nullptr);
    Viewer viewer;
    viewer.SetWord(4, 0xFFFFFFF0);
    viewer.SetWord(0, 8);

    ring->Write("abcdef");

    EXPECT_EQ(viewer.Data(10), std::string("cdef\r\n\0\0ab", 10));
}

TEST(TraceRing, RingWithoutRoomTakesNothing)
{
    Viewer viewer;
    viewer.FillHeader(0);
    auto ring = TraceRing::Attach(1000, nullptr);
    ASSERT_TRUE(ring);

    ring->Write("line");

    EXPECT_EQ(viewer.Word(0), 0u);
    EXPECT_EQ(viewer.Word(64), 0u);
}

TEST(TraceRing, NameThatBelongsToAnotherKindOfObjectLeavesNoRing)
{
    const win::Handle event(CreateEventA(nullptr, TRUE, FALSE, "Global\\NorvSDD_Trace"));
    ASSERT_TRUE(event);

    EXPECT_FALSE(TraceRing::Attach(1000, nullptr));
}

} // namespace

} // namespace norvepa
