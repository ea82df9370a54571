// The driver example's own decoder, shown what no library hands out.
extern "C"
{
#include "driver/records.h"
}

#include "support/GuardedBytes.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using Block = std::vector<std::uint8_t>;

const Block Boolean{14, 0, 4, 'a', 0, 'n', 0, 1, 0, 4, 1, 0, 0, 0};
const Block Integer{12, 0, 2, 'n', 0, 1, 1, 4, 0xFE, 0xFF, 0xFF, 0xFF};
const Block Text{12, 0, 2, 't', 0, 1, 2, 4, 0xA9, 0x03, 'x', 0};

Block operator+(Block first, const Block& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

std::wstring InWords(const record& taken)
{
    return std::wstring(taken.name) + L"=" +
           (taken.type == RECORD_STRING ? taken.text : std::to_wstring(taken.number).c_str());
}

struct Reading
{
    std::vector<std::wstring> records;
    record_status end;
    std::size_t at; // where the reader has stopped
};

Reading Read(std::span<const std::uint8_t> block)
{
    Reading reading{};
    record_reader reader{block.data(), block.data() + block.size()};
    record taken{};
    while ((reading.end = next_record(&reader, &taken)) == RECORD_TAKEN)
    {
        reading.records.push_back(InWords(taken));
    }
    reading.at = static_cast<std::size_t>(reader.at - block.data());
    return reading;
}

TEST(DriverRecords, AreTakenOneAfterTheOther)
{
    const Reading reading = Read(Boolean + Integer + Text + Block{6, 0, 0, 1, 2, 0});

    EXPECT_THAT(reading.records, ElementsAre(L"an=1", L"n=-2", L"t=\u03A9x", L"="));
    EXPECT_EQ(reading.end, RECORDS_AT_END);
}

TEST(DriverRecords, AreNoneInAnEmptyBlock)
{
    EXPECT_THAT(Read({}).records, IsEmpty());
    EXPECT_EQ(Read({}).end, RECORDS_AT_END);
}

TEST(DriverRecords, HaveRoomForTheLongestTexts)
{
    const Block longest = Block{0x02, 0x02, 254} + Block(254, 'n') + Block{1, 2, 254} + Block(254, 'v');

    EXPECT_THAT(Read(longest).records,
                ElementsAre(std::wstring(127, L'\u6E6E') + L"=" + std::wstring(127, L'\u7676')));
}

TEST(DriverRecords, AreRefusedWhenTheyAreCutOffAnywhere)
{
    for (const Block& block : {Boolean, Integer, Text})
    {
        for (std::size_t size = 1; size < block.size(); ++size)
        {
            const Reading reading = Read(std::span(block).first(size));

            EXPECT_EQ(reading.end, RECORDS_DAMAGED) << size;
            EXPECT_EQ(reading.at, 0U);
        }
    }
}

TEST(DriverRecords, AreRefusedWhenTheyAreDamaged)
{
    const Block damaged[] = {
        {0, 0},                                     // shorter than its own length
        {1, 0, 0, 0},                               // and so this
        {2, 0},                                     // without a name
        {12, 0, 10, 'n', 0, 1, 1, 4, 0, 0, 0, 0},   // the name ends behind the record
        {12, 0, 255, 'n', 0, 1, 1, 4, 0, 0, 0, 0},  // far behind
        {11, 0, 2, 'n', 0, 1, 1, 4, 0, 0, 0},       // the value does
        {13, 0, 2, 'n', 0, 1, 1, 4, 0, 0, 0, 0, 0}, // something behind the value
        {11, 0, 1, 'n', 1, 1, 4, 0, 0, 0, 0},       // half a character in the name
        {9, 0, 2, 'n', 0, 1, 2, 1, 'x'},            // in the text
        {13, 0, 2, 'n', 0, 2, 1, 0, 4, 0, 0, 0, 0}, // a type of two bytes
        {11, 0, 2, 'n', 0, 0, 4, 0, 0, 0, 0},       // of none
        {12, 0, 2, 'n', 0, 1, 3, 4, 0, 0, 0, 0},    // an unknown one
        {10, 0, 2, 'n', 0, 1, 1, 2, 0, 0},          // a short integer
        {9, 0, 2, 'n', 0, 1, 0, 1, 1},              // a short boolean
        {12, 0, 2, 'n', 0, 1, 0, 4, 0, 1, 0, 0},    // one that is neither
    };

    for (const Block& block : damaged)
    {
        const Reading reading = Read(Integer + block);

        EXPECT_EQ(reading.end, RECORDS_DAMAGED) << testing::PrintToString(block);
        EXPECT_EQ(reading.at, Integer.size()) << "stays where the damage is";
        EXPECT_THAT(reading.records, ElementsAre(L"n=-2"));
    }
}

std::span<const std::uint8_t> Guarded(GuardedBytes& guarded, const Block& block)
{
    const std::string_view copy = guarded.Copy({reinterpret_cast<const char*>(block.data()), block.size()});
    return {reinterpret_cast<const std::uint8_t*>(copy.data()), copy.size()};
}

// A byte behind the block can't be read without a fault.
TEST(DriverRecords, NeverReadBehindTheBlock)
{
    std::mt19937 random(4711); // NOLINT(cert-msc51-cpp) the same each time
    std::uniform_int_distribution<unsigned> byte(0, 255);
    const Block sound = Boolean + Integer + Text;
    GuardedBytes guarded(sound.size());
    for (int round = 0; round < 20'000; ++round)
    {
        Block block = sound;
        block[byte(random) % block.size()] = static_cast<std::uint8_t>(byte(random));
        block.resize(byte(random) % (block.size() + 1));

        static_cast<void>(Read(Guarded(guarded, block)));
    }
}

} // namespace
} // namespace norvepa::test
