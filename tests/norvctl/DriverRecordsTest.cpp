#include "norvctl/DriverRecords.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

using norvctl::DriverRecord;
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

std::vector<DriverRecord> Decode(const Block& block)
{
    return norvctl::DecodeDriverRecords("Kessel", block);
}

TEST(NorvctlDriverRecords, AreDecodedOneAfterTheOther)
{
    const std::vector<DriverRecord> records = Decode(Boolean + Integer + Text);

    EXPECT_THAT(records, ElementsAre(DriverRecord{L"an", true}, DriverRecord{L"n", -2},
                                     DriverRecord{L"t", L"\u03A9x"}));
}

TEST(NorvctlDriverRecords, AreNoneInAnEmptyBlock)
{
    EXPECT_THAT(Decode({}), IsEmpty());
}

TEST(NorvctlDriverRecords, MayHaveNeitherNameNorText)
{
    EXPECT_THAT(Decode({6, 0, 0, 1, 2, 0}), ElementsAre(DriverRecord{L"", L""}));
}

TEST(NorvctlDriverRecords, AreLongerThanOneByteCanTell)
{
    const Block longest = Block{0x02, 0x02, 254} + Block(254, 'n') + Block{1, 2, 254} + Block(254, 'v');

    EXPECT_THAT(Decode(longest),
                ElementsAre(DriverRecord{std::wstring(127, L'\u6E6E'), std::wstring(127, L'\u7676')}));
}

TEST(NorvctlDriverRecords, HaveAWordForTheirType)
{
    EXPECT_STREQ(norvctl::TypeWord(false), "boolean");
    EXPECT_STREQ(norvctl::TypeWord(0), "integer");
    EXPECT_STREQ(norvctl::TypeWord(L""), "string");
}

struct Damage
{
    const char* name;
    Block block;
    const char* message;
};

void PrintTo(const Damage& damage, std::ostream* stream)
{
    *stream << damage.name;
}

class NorvctlDamagedRecords : public testing::TestWithParam<Damage>
{
};

TEST_P(NorvctlDamagedRecords, AreRefusedWithWhatIsWrong)
{
    try
    {
        static_cast<void>(Decode(GetParam().block));
        FAIL() << "was taken for sound";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_STREQ(error.what(), GetParam().message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, NorvctlDamagedRecords,
    testing::Values(
        Damage{"HalfALength", {14}, "Kessel: record 1 ends within its length"},
        Damage{"NoLength", {0, 0}, "Kessel: record 1 ends within its length"},
        Damage{"LengthAlone", {2, 0}, "Kessel: record 1 ends within its length of the name"},
        Damage{"LongerThanTheBlock",
               {14, 0, 4, 'a', 0, 'n', 0, 1, 0, 4, 1, 0, 0},
               "Kessel: record 1 should have 14 bytes, and 13 are there"},
        Damage{"NameBeyondTheRecord",
               {12, 0, 10, 'n', 0, 1, 1, 4, 0, 0, 0, 0},
               "Kessel: record 1 ends within its name"},
        Damage{
            "NothingBehindTheName", {5, 0, 2, 'n', 0}, "Kessel: record 1 ends within its length of the type"},
        Damage{"NoValue", {7, 0, 2, 'n', 0, 1, 1}, "Kessel: record 1 ends within its length of the value"},
        Damage{"ShorterThanItsValue",
               {11, 0, 2, 'n', 0, 1, 1, 4, 0, 0, 0, 0},
               "Kessel: record 1 ends within its value"},
        Damage{"LongerThanItsValue",
               {13, 0, 2, 'n', 0, 1, 1, 4, 0, 0, 0, 0, 0},
               "Kessel: record 1 has bytes behind its value: 1"},
        Damage{"HalfACharacterInTheName",
               {11, 0, 1, 'n', 1, 1, 4, 0, 0, 0, 0},
               "Kessel: record 1 has half a character in its name"},
        Damage{"HalfACharacterInTheText",
               {9, 0, 2, 'n', 0, 1, 2, 1, 'x'},
               "Kessel: record 1 has half a character in its value"},
        Damage{"ATypeOfTwoBytes",
               {13, 0, 2, 'n', 0, 2, 1, 0, 4, 0, 0, 0, 0},
               "Kessel: record 1 has a type of 2 bytes instead of 1"},
        Damage{"NoType",
               {11, 0, 2, 'n', 0, 0, 4, 0, 0, 0, 0},
               "Kessel: record 1 has a type of 0 bytes instead of 1"},
        Damage{"AnUnknownType",
               {12, 0, 2, 'n', 0, 1, 3, 4, 0, 0, 0, 0},
               "Kessel: record 1 has the unknown type 3"},
        Damage{"AShortInteger",
               {10, 0, 2, 'n', 0, 1, 1, 2, 0, 0},
               "Kessel: record 1 has a number of 2 bytes instead of 4"},
        Damage{"AShortBoolean",
               {9, 0, 2, 'n', 0, 1, 0, 1, 1},
               "Kessel: record 1 has a number of 1 bytes instead of 4"},
        Damage{"ABooleanThatIsNone",
               {12, 0, 2, 'n', 0, 1, 0, 4, 0, 1, 0, 0},
               "Kessel: record 1 has a boolean that is 256"},
        Damage{"ASecondRecord", Text + Block{6, 0, 0},
               "Kessel: record 2 should have 6 bytes, and 3 are there"},
        Damage{"AByteTooMany", Boolean + Block{0}, "Kessel: record 2 ends within its length"}),
    [](const auto& damage) { return damage.param.name; });

} // namespace
} // namespace norvepa::test
