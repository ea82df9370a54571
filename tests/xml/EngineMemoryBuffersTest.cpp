// The buffers that an engine reads into, and what the pool takes of the process's heap.

#include "support/ProcessResources.h"
#include "xml/EngineMemory.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <optional>

namespace norvepa::test
{
namespace
{

constexpr std::size_t InputBytes = 3'000'000;

// An input is twice as long in UTF-16, and a buffer that is doubled gets up to twice as long as it need be.
constexpr std::size_t MostNeeded = 4 * InputBytes;

TEST(EngineMemoryBuffers, DoNotMoveForAsLongAsTheInputLasts)
{
    EngineMemory memory(InputBytes);
    void* const raw = memory.Alloc(8192);
    void* const decoded = memory.Alloc(8192);

    for (std::size_t bytes = 8192; bytes <= MostNeeded; bytes = bytes * 3 / 2)
    {
        ASSERT_EQ(memory.Realloc(raw, bytes), raw) << bytes;
        ASSERT_EQ(memory.Realloc(decoded, bytes), decoded) << bytes;
    }

    EXPECT_EQ(memory.Realloc(raw, MostNeeded), raw);
    EXPECT_EQ(memory.Realloc(decoded, MostNeeded), decoded);
}

TEST(EngineMemoryBuffers, HoldAllThatTheyHaveRoomFor)
{
    EngineMemory memory(InputBytes);
    auto* const raw = static_cast<unsigned char*>(memory.Alloc(4096));
    auto* const decoded = static_cast<unsigned char*>(memory.Alloc(4096));

    std::fill_n(raw, memory.GetSize(raw), static_cast<unsigned char>(1));
    std::fill_n(decoded, memory.GetSize(decoded), static_cast<unsigned char>(2));

    EXPECT_GE(memory.GetSize(raw), MostNeeded);
    EXPECT_EQ(std::count(raw, raw + memory.GetSize(raw), 1), static_cast<int>(memory.GetSize(raw)));
}

TEST(EngineMemoryBuffers, AreTheFirstTwoLargeBlocksAlsoBehindManySmallOnes)
{
    EngineMemory memory(InputBytes);
    for (int i = 0; i < 1'000; ++i)
    {
        static_cast<void>(memory.Alloc(512));
        static_cast<void>(memory.Alloc(513));
        static_cast<void>(memory.Alloc(4095));
    }

    EXPECT_GE(memory.GetSize(memory.Alloc(4096)), MostNeeded);
    EXPECT_GE(memory.GetSize(memory.Alloc(4096)), MostNeeded);
}

TEST(EngineMemoryBuffers, AreTwo)
{
    EngineMemory memory(InputBytes);
    static_cast<void>(memory.Alloc(4096));
    static_cast<void>(memory.Alloc(4096));

    EXPECT_EQ(memory.GetSize(memory.Alloc(4096)), 4096U);
}

TEST(EngineMemoryBuffers, HaveRoomForAnEngineThatAsksForMoreThanTheInputNeeds)
{
    EngineMemory memory(0);

    EXPECT_GE(memory.GetSize(memory.Alloc(1'000'000)), 1'000'000U);
}

TEST(EngineMemoryBuffers, OfAnEmptyInputHaveRoomForOneReading)
{
    EngineMemory memory(0);
    void* const buffer = memory.Alloc(8192);

    EXPECT_EQ(memory.Realloc(buffer, 32 * 1024), buffer);
}

class EngineMemoryOnTheHeap : public testing::Test
{
protected:
    static std::size_t Blocks() { return CountHeapBlocks().heapBlocks; }
};

TEST_F(EngineMemoryOnTheHeap, TakesNothingUntilItIsAsked)
{
    const std::size_t before = Blocks();
    const EngineMemory memory(InputBytes);

    EXPECT_EQ(Blocks(), before);
}

TEST_F(EngineMemoryOnTheHeap, GivesAllBackAtItsEnd)
{
    const ProcessResources before = CountHeapBlocks();
    {
        EngineMemory memory(InputBytes);
        for (std::size_t bytes = 0; bytes < 100'000; bytes = bytes * 5 / 4 + 1)
        {
            static_cast<void>(memory.Alloc(bytes));
            memory.Free(memory.Alloc(bytes));
            static_cast<void>(memory.Realloc(memory.Alloc(bytes), 2 * bytes));
        }
    }

    EXPECT_EQ(CountHeapBlocks(), before);
}

TEST_F(EngineMemoryOnTheHeap, GivesALargeBlockBackAtOnce)
{
    EngineMemory memory(0);
    void* const first = memory.Alloc(513);
    void* const middle = memory.Alloc(5'000);
    void* const last = memory.Alloc(50'000);
    const std::size_t before = Blocks();

    memory.Free(middle);
    EXPECT_EQ(Blocks(), before - 1);
    memory.Free(last);
    EXPECT_EQ(Blocks(), before - 2);
    memory.Free(first);
    EXPECT_EQ(Blocks(), before - 3);
}

TEST_F(EngineMemoryOnTheHeap, LivesOnFreeBlocksForAsLongAsThereAreAny)
{
    EngineMemory memory(0);
    memory.Free(memory.Alloc(100));
    const std::size_t before = Blocks();

    for (int i = 0; i < 100'000; ++i)
    {
        memory.Free(memory.Alloc(100));
    }

    EXPECT_EQ(Blocks(), before);
}

TEST_F(EngineMemoryOnTheHeap, TakesOneBlockForHundredsOfSmallOnes)
{
    EngineMemory memory(0);
    const std::size_t before = Blocks();

    for (int i = 0; i < 300; ++i)
    {
        static_cast<void>(memory.Alloc(32));
    }

    EXPECT_EQ(Blocks(), before + 1);
}

} // namespace
} // namespace norvepa::test
