#include "xml/EngineMemory.h"

#include "support/ImportHook.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <gmock/gmock.h>
#include <limits>
#include <span>
#include <vector>

namespace norvepa::test
{
namespace
{

constexpr std::size_t InputBytes = 100'000;

// Around the steps of small blocks, the largest of them, the least buffer and a piece.
constexpr std::array<std::size_t, 21> Sizes{0,    1,    15,   16,     31,     32,      33,
                                            63,   64,   65,   480,    511,    512,     513,
                                            4095, 4096, 4097, 32'767, 32'768, 100'000, 464'000};

class EngineMemoryTest : public testing::Test
{
protected:
    EngineMemory memory{InputBytes};
};

struct Block
{
    std::uint8_t* begin;
    std::size_t size;
    std::uint8_t mark;
};

bool HoldsItsMark(const Block& block)
{
    return std::all_of(block.begin, block.begin + block.size,
                       [&](std::uint8_t byte) { return byte == block.mark; });
}

LPVOID WINAPI NoHeap(HANDLE, DWORD, SIZE_T)
{
    return nullptr;
}

TEST_F(EngineMemoryTest, KeepsEachBlockApartFromAllOthers)
{
    std::vector<Block> blocks;
    for (int round = 0; round < 100; ++round)
    {
        for (const std::size_t size : std::span(Sizes).first(round < 3 ? Sizes.size() : 17))
        {
            auto* const begin = static_cast<std::uint8_t*>(memory.Alloc(size));
            ASSERT_NE(begin, nullptr);
            const auto mark = static_cast<std::uint8_t>(blocks.size() % 251);
            std::fill_n(begin, size, mark);
            blocks.push_back({begin, size, mark});
        }
    }

    EXPECT_TRUE(std::all_of(blocks.begin(), blocks.end(), HoldsItsMark));
}

TEST_F(EngineMemoryTest, BeginsEachBlockWhereAnythingMayLie)
{
    for (int round = 0; round < 3; ++round)
    {
        for (const std::size_t size : Sizes)
        {
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory.Alloc(size)) % 16, 0U) << size;
        }
    }
}

TEST_F(EngineMemoryTest, GivesBlocksOfNoBytesThatAreDistinct)
{
    void* const first = memory.Alloc(0);
    void* const second = memory.Alloc(0);

    EXPECT_NE(first, nullptr);
    EXPECT_NE(second, nullptr);
    EXPECT_NE(first, second);
}

TEST_F(EngineMemoryTest, TellsAtLeastWhatWasAskedForAsABlocksSize)
{
    for (const std::size_t size : Sizes)
    {
        EXPECT_GE(memory.GetSize(memory.Alloc(size)), size);
    }
    EXPECT_EQ(memory.GetSize(nullptr), 0U);
}

TEST_F(EngineMemoryTest, UsesABlockAgainOnceItIsFree)
{
    for (const std::size_t size : {0U, 1U, 32U, 33U, 511U, 512U})
    {
        void* const block = memory.Alloc(size);
        static_cast<void>(memory.Alloc(size));

        memory.Free(block);

        EXPECT_EQ(memory.Alloc(size), block) << size;
    }
}

TEST_F(EngineMemoryTest, LendsAFreeBlockToOneOnly)
{
    void* const first = memory.Alloc(100);
    void* const second = memory.Alloc(100);
    memory.Free(first);
    memory.Free(second);

    const std::array again{memory.Alloc(100), memory.Alloc(100), memory.Alloc(100)};

    EXPECT_THAT(std::vector(again.begin(), again.begin() + 2), testing::UnorderedElementsAre(first, second));
    EXPECT_NE(again[2], first);
    EXPECT_NE(again[2], second);
}

TEST_F(EngineMemoryTest, GivesAFreeBlockToNoneOfAnotherSize)
{
    auto* const small = static_cast<std::uint8_t*>(memory.Alloc(32));
    memory.Free(small);

    EXPECT_NE(memory.Alloc(33), small);
    EXPECT_NE(memory.Alloc(512), small);
    EXPECT_NE(memory.Alloc(513), small);
    EXPECT_EQ(memory.Alloc(1), small);
}

TEST_F(EngineMemoryTest, KeepsTheContentOfABlockThatGrows)
{
    for (const std::size_t from : Sizes)
    {
        for (const std::size_t to : Sizes)
        {
            const Block block{static_cast<std::uint8_t*>(memory.Alloc(from)), std::min(from, to), 0xA5};
            std::fill_n(block.begin, from, block.mark);

            auto* const grown = static_cast<std::uint8_t*>(memory.Realloc(block.begin, to));

            ASSERT_NE(grown, nullptr);
            EXPECT_TRUE(HoldsItsMark({grown, block.size, block.mark})) << from << " to " << to;
            std::fill_n(grown, to, std::uint8_t{0x5A}); // all of it is the owner's
            memory.Free(grown);
        }
    }
}

TEST_F(EngineMemoryTest, MakesABlockOfNone)
{
    void* const block = memory.Realloc(nullptr, 40);

    EXPECT_GE(memory.GetSize(block), 40U);
}

TEST_F(EngineMemoryTest, LeavesABlockWhereItIsWhenThereIsRoom)
{
    void* const block = memory.Alloc(65);

    EXPECT_EQ(memory.Realloc(block, 96), block);
    EXPECT_EQ(memory.Realloc(block, 0), block);
    EXPECT_EQ(memory.Realloc(block, 65), block);
}

TEST_F(EngineMemoryTest, FreesABlockThatHasMoved)
{
    void* const block = memory.Alloc(32);

    ASSERT_NE(memory.Realloc(block, 100), block);

    EXPECT_EQ(memory.Alloc(32), block);
}

TEST_F(EngineMemoryTest, HasNothingToFreeOfNone)
{
    memory.Free(nullptr);

    EXPECT_NE(memory.Alloc(1), nullptr);
}

TEST_F(EngineMemoryTest, TellsWhenMemoryHasRunOut)
{
    const ImportHook heap("HeapAlloc", &NoHeap);

    EXPECT_EQ(memory.Alloc(1), nullptr);
    EXPECT_EQ(memory.Alloc(513), nullptr);
    EXPECT_EQ(memory.Alloc(4096), nullptr);
    EXPECT_EQ(memory.Realloc(nullptr, 100'000), nullptr);
}

TEST_F(EngineMemoryTest, TellsThatThereIsNoSuchAmount)
{
    constexpr std::size_t most = std::numeric_limits<std::size_t>::max();

    EXPECT_EQ(memory.Alloc(most), nullptr);
    EXPECT_EQ(memory.Alloc(most - 40), nullptr);
    EXPECT_EQ(memory.Alloc(most / 2), nullptr);
}

TEST_F(EngineMemoryTest, LeavesABlockAsItIsWhenThereIsNoMemoryToGrowItTo)
{
    const Block block{static_cast<std::uint8_t*>(memory.Alloc(600)), 600, 0xA5};
    std::fill_n(block.begin, block.size, block.mark);
    {
        const ImportHook heap("HeapAlloc", &NoHeap);
        EXPECT_EQ(memory.Realloc(block.begin, 5'000), nullptr);
    }

    EXPECT_TRUE(HoldsItsMark(block));
    EXPECT_EQ(memory.GetSize(block.begin), 608U);
}

TEST_F(EngineMemoryTest, IsAnAllocatorByItsInterfaces)
{
    void* object = nullptr;

    EXPECT_EQ(memory.QueryInterface(__uuidof(IMalloc), &object), S_OK);
    EXPECT_EQ(object, static_cast<IMalloc*>(&memory));
    EXPECT_EQ(memory.QueryInterface(__uuidof(IUnknown), &object), S_OK);
    EXPECT_EQ(object, static_cast<IMalloc*>(&memory));
    EXPECT_EQ(memory.QueryInterface(__uuidof(IStream), &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(EngineMemoryTest, LivesForAsLongAsItsOwnerLetsIt)
{
    memory.AddRef();
    memory.Release();
    memory.Release();

    EXPECT_NE(memory.Alloc(1), nullptr);
    memory.HeapMinimize();
    EXPECT_EQ(memory.DidAlloc(memory.Alloc(1)), -1); // it isn't known
}

} // namespace
} // namespace norvepa::test
