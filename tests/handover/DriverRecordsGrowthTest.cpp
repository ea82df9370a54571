#include "handover/RecordBytes.h"
#include "handover/StreamHeap.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t Room = 1000; // of a new buffer, and of each after it has grown

// A record whose fields all begin with a byte that isn't zero, so that one that isn't written yet shows.
constexpr std::array<std::byte, 6> SampleValue{std::byte{'v'}, std::byte{'w'}, std::byte{'x'},
                                               std::byte{'y'}, std::byte{'z'}, std::byte{'!'}};
constexpr DriverRecord Sample{L"ab", DriverType::String, SampleValue};
constexpr std::string_view SampleBytes("\x10\0\4a\0b\0\1\2\6vwxyz!", 16);

struct Field
{
    const char* name;
    std::size_t place; // in the sample
    std::size_t size;
};

constexpr std::array Fields{Field{"RecordLength", 0, 2}, Field{"NameBytes", 2, 1}, Field{"Name", 3, 4},
                            Field{"TypeBytes", 7, 1},    Field{"Type", 8, 1},      Field{"ValueBytes", 9, 1},
                            Field{"Value", 10, 6}};

// Records of this many bytes altogether.
void Fill(DriverRecords& records, std::size_t size)
{
    constexpr std::size_t least = 6;
    const std::vector<std::byte> value(200, std::byte{0xAB});
    while (size > 0)
    {
        const std::size_t next = size < 2 * value.size() ? size : value.size();
        const std::size_t part = next > value.size() ? next / 2 : next;
        ASSERT_EQ(records.Write({L"", DriverType::String, std::span(value).first(part - least)}), PGSP_OK);
        size -= part;
    }
}

std::string Filled(std::size_t size)
{
    DriverRecords records;
    Fill(records, size);
    return BytesOf(records);
}

// A buffer that has grown `times` before, with its bytes up to some place and nothing behind.
std::string Buffer(std::string_view bytes, std::size_t times = 0)
{
    std::string buffer(bytes);
    buffer.resize(Room * (times + 1), '\0');
    return buffer;
}

class DriverRecordsGrowth : public testing::Test
{
protected:
    StreamHeap heap;
};

class DriverRecordsGrowthAtField : public testing::TestWithParam<Field>
{
protected:
    [[nodiscard]] static std::size_t endOfField() { return GetParam().place + GetParam().size; }

    // What the stream holds when one of the sample's fields is next.
    [[nodiscard]] static std::string Ahead(std::size_t filled, std::size_t place)
    {
        return Filled(filled) + std::string(SampleBytes.substr(0, place));
    }
};

TEST_P(DriverRecordsGrowthAtField, ComesAheadOfOneThatWouldTakeTheLastByte)
{
    const std::size_t filled = Room - endOfField();
    const std::string ahead = Ahead(filled, GetParam().place);
    const std::string whole = Ahead(filled, SampleBytes.size());
    const StreamHeap heap;
    DriverRecords records;
    Fill(records, filled);

    ASSERT_EQ(records.Write(Sample), PGSP_OK);

    EXPECT_THAT(heap.grownFrom(), ElementsAre(Buffer(ahead)));
    EXPECT_EQ(BytesOf(records), whole);
}

TEST_P(DriverRecordsGrowthAtField, DoesNotComeAheadOfOneThatLeavesAByte)
{
    const std::size_t filled = Room - endOfField() - 1;
    const std::string behind = Ahead(filled, endOfField());
    const std::string whole = Ahead(filled, SampleBytes.size());
    const StreamHeap heap;
    DriverRecords records;
    Fill(records, filled);

    ASSERT_EQ(records.Write(Sample), PGSP_OK);

    const std::vector<std::string> atTheNext(endOfField() == SampleBytes.size() ? 0 : 1, Buffer(behind));
    EXPECT_EQ(heap.grownFrom(), atTheNext);
    EXPECT_EQ(BytesOf(records), whole);
}

TEST_P(DriverRecordsGrowthAtField, ThatFailsLeavesNothing)
{
    StreamHeap heap;
    DriverRecords records;
    Fill(records, Room - endOfField());
    heap.RefuseToGrow(1);

    EXPECT_EQ(records.Write(Sample), PGSP_ERR_DRIVER_NO_MEMORY);

    EXPECT_TRUE(records.bytes().empty());
    EXPECT_FALSE(heap.isHeld());
}

INSTANTIATE_TEST_SUITE_P(Each, DriverRecordsGrowthAtField, testing::ValuesIn(Fields),
                         [](const auto& each) { return each.param.name; });

TEST_F(DriverRecordsGrowth, DoesNotComeWithoutNeed)
{
    DriverRecords records;

    Fill(records, Room - 1);

    EXPECT_THAT(heap.grownFrom(), IsEmpty());
    EXPECT_EQ(records.bytes().size(), Room - 1);
}

// What was free ahead of it isn't counted any more.
TEST_F(DriverRecordsGrowth, MakesRoomForAThousandBytesFromWhereItCame)
{
    DriverRecords records;
    Fill(records, Room - 2);
    ASSERT_EQ(records.Write(Sample), PGSP_OK);
    const std::size_t taken = SampleBytes.size();

    Fill(records, Room - 2 - taken);
    const std::string ahead = BytesOf(records);
    ASSERT_EQ(records.Write(Sample), PGSP_OK);

    ASSERT_EQ(heap.grownFrom().size(), 2U);
    EXPECT_EQ(ahead.size(), 2 * Room - 4);
    EXPECT_EQ(heap.grownFrom().back(), Buffer(ahead, 1));
}

TEST_F(DriverRecordsGrowth, GoesOnForAsLongAsThereAreRecords)
{
    constexpr std::size_t count = 5000;
    std::string expected;
    DriverRecords records;

    for (std::size_t number = 0; number < count; ++number)
    {
        expected += SampleBytes;
        ASSERT_EQ(records.Write(Sample), PGSP_OK);
    }

    EXPECT_EQ(BytesOf(records), expected);
    EXPECT_GE(heap.grownFrom().size(), count * SampleBytes.size() / Room);
}

TEST_F(DriverRecordsGrowth, ThatFailsLaterLeavesNothingEither)
{
    for (std::size_t nth = 2; nth <= 5; ++nth)
    {
        DriverRecords records;
        heap.RefuseToGrow(nth);

        Result result = PGSP_OK;
        while (result == PGSP_OK)
        {
            ASSERT_LT(records.bytes().size(), nth * Room);
            result = records.Write(Sample);
        }

        EXPECT_EQ(result, PGSP_ERR_DRIVER_NO_MEMORY);
        EXPECT_TRUE(records.bytes().empty());
        EXPECT_FALSE(heap.isHeld());
    }
}

TEST_F(DriverRecordsGrowth, IsNotWhatFailsWithoutAFirstBuffer)
{
    heap.RefuseToBegin();
    DriverRecords records;

    EXPECT_EQ(records.Write(Sample), PGSP_ERR_DRIVER_BUFFER);

    EXPECT_TRUE(records.bytes().empty());
    EXPECT_THAT(heap.grownFrom(), IsEmpty());
}

TEST_F(DriverRecordsGrowth, EndsWithTheStream)
{
    {
        DriverRecords records;
        Fill(records, 3 * Room);
        ASSERT_TRUE(heap.isHeld());
    }

    EXPECT_FALSE(heap.isHeld());
}

} // namespace
} // namespace norvepa::test
