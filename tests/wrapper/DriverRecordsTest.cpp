#include "WrapperScene.h"

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

using Block = std::vector<std::uint8_t>;

class WrapperDriverRecords : public WrapperScene
{
};

TEST_F(WrapperDriverRecords, AreReadOfALogDevice)
{
    const std::vector<DriverRecord> records = LogDevice(L"Waage Rampe 2").ReadAsDriver().value();

    EXPECT_EQ(records.front(), (DriverRecord{L"Unit", 1}));
    EXPECT_THAT(records, Contains(DriverRecord{L"Active", true}));
    EXPECT_THAT(records, Contains(DriverRecord{L"line_resistance", L"120 \u03A9"}));
}

TEST_F(WrapperDriverRecords, AreNotReadOfOneThatHasNothingToLoad)
{
    EXPECT_EQ(LogDevice(L"Pr\u00FCfstand").ReadAsDriver().error(),
              Error("norvDriverReadLogDevice", PGSP_ERR_DRIVER_READ));
    EXPECT_EQ(CodeOf(Missing.ReadAsDriver()), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST(WrapperDriverRecordsOwn, AreDecodedOneBehindTheOther)
{
    const Block block{14, 0, 4, 'a', 0, 'n', 0, 1, 0,    4,    1,    0,    0, 0, // an, true
                      12, 0, 2, 'n', 0, 1,   1, 4, 0xFE, 0xFF, 0xFF, 0xFF,       // n, -2
                      12, 0, 2, 't', 0, 1,   2, 4, 0xA9, 0x03, 'x',  0,          // t, a text
                      6,  0, 0, 1,   2, 0};                                      // neither name nor text

    EXPECT_THAT(DecodeDriverRecords(block).value(),
                ElementsAre(DriverRecord{L"an", true}, DriverRecord{L"n", -2}, DriverRecord{L"t", L"\u03A9x"},
                            DriverRecord{L"", L""}));
    EXPECT_THAT(DecodeDriverRecords({}).value(), IsEmpty());
}

TEST(WrapperDriverRecordsOwn, AreRefusedWhenTheyAreCutOffAnywhere)
{
    const Block block{14, 0, 4, 'a', 0, 'n', 0, 1, 0, 4, 1, 0, 0, 0};

    for (std::size_t size = 1; size < block.size(); ++size)
    {
        EXPECT_EQ(DecodeDriverRecords(std::span(block).first(size)).error(),
                  Error("DecodeDriverRecords", ERROR_INVALID_DATA))
            << size;
    }
}

TEST(WrapperDriverRecordsOwn, AreRefusedWhenTheyAreDamaged)
{
    const Block damaged[] = {
        {0, 0}, // shorter than its length
        {1, 0, 0, 0},
        {2, 0},                                      // without a name
        {12, 0, 10, 'n', 0, 1, 1, 4, 0, 0, 0, 0},    // the name ends behind the record
        {11, 0, 2, 'n', 0, 1, 1, 4, 0, 0, 0},        // the value does
        {13, 0, 2, 'n', 0, 1, 1, 4, 0, 0, 0, 0, 0},  // something behind the value
        {11, 0, 1, 'n', 1, 1, 4, 0, 0, 0, 0},        // half a character in the name
        {9, 0, 2, 'n', 0, 1, 2, 1, 'x'},             // in the text
        {13, 0, 2, 'n', 0, 2, 1, 0, 4, 0, 0, 0, 0},  // a type of two bytes
        {11, 0, 2, 'n', 0, 0, 4, 0, 0, 0, 0},        // of none
        {12, 0, 2, 'n', 0, 1, 3, 4, 0, 0, 0, 0},     // an unknown one
        {10, 0, 2, 'n', 0, 1, 1, 2, 0, 0},           // a short integer
        {9, 0, 2, 'n', 0, 1, 0, 1, 1},               // a short boolean
        {12, 0, 2, 'n', 0, 1, 0, 4, 0, 1, 0, 0},     // one that is neither
        {12, 0, 2, 'n', 0, 1, 1, 4, 1, 0, 0, 0, 99}, // a byte behind the last record
    };

    for (const Block& block : damaged)
    {
        EXPECT_EQ(CodeOf(DecodeDriverRecords(block)), 13) << testing::PrintToString(block);
    }
}

} // namespace
} // namespace norvepa::test
