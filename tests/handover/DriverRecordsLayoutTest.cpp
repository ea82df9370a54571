#include "handover/RecordBytes.h"

#include <array>
#include <cstdint>
#include <gmock/gmock.h>
#include <initializer_list>
#include <string>

namespace norvepa::test
{
namespace
{

// Characters that differ from their neighbours.
std::wstring TextOfLength(std::size_t length)
{
    std::wstring text(length, L'\0');
    for (std::size_t place = 0; place < length; ++place)
    {
        text[place] = static_cast<wchar_t>(L'A' + place);
    }
    return text;
}

std::string Bytes(std::initializer_list<unsigned> bytes)
{
    std::string text;
    for (const unsigned byte : bytes)
    {
        text += static_cast<char>(byte);
    }
    return text;
}

// Of one text.
struct Length
{
    std::size_t characters;
    std::size_t bytes;
};

constexpr std::array Lengths{Length{0, 0},   Length{1, 2},   Length{127, 254},  Length{128, 0},
                             Length{129, 2}, Length{130, 4}, Length{254, 252},  Length{255, 254},
                             Length{256, 0}, Length{257, 2}, Length{259, 6},    Length{260, 8},
                             Length{261, 8}, Length{300, 8}, Length{100'000, 8}};

TEST(RecordText, IsAsMuchAsEightBitsTellOfTwoHundredAndSixtyCharacters)
{
    for (const auto& [characters, bytes] : Lengths)
    {
        const std::wstring text = TextOfLength(characters);

        const std::span<const std::byte> told = RecordText(text);

        EXPECT_EQ(std::string(reinterpret_cast<const char*>(told.data()), told.size()),
                  BytesOf(text).substr(0, bytes))
            << characters;
    }
}

class DriverRecordsLayout : public testing::Test
{
protected:
    void Write(std::wstring_view name, DriverType type, std::int32_t number)
    {
        ASSERT_EQ(records.Write({name, type, std::as_bytes(std::span(&number, 1))}), PGSP_OK);
    }

    void Write(std::wstring_view name, std::wstring_view text)
    {
        ASSERT_EQ(records.Write({name, DriverType::String, RecordText(text)}), PGSP_OK);
    }

    DriverRecords records;
};

TEST_F(DriverRecordsLayout, OfNothingIsEmpty)
{
    EXPECT_TRUE(records.bytes().empty());
}

TEST_F(DriverRecordsLayout, OfAnInteger)
{
    Write(L"Nr", DriverType::Integer, -2);

    EXPECT_EQ(BytesOf(records), Bytes({0x0E, 0, 4, 'N', 0, 'r', 0, 1, 1, 4, 0xFE, 0xFF, 0xFF, 0xFF}));
}

TEST_F(DriverRecordsLayout, OfANumberBeginsWithItsLowestByte)
{
    Write(L"N", DriverType::Integer, 0x12345678);

    EXPECT_EQ(BytesOf(records), Bytes({0x0C, 0, 2, 'N', 0, 1, 1, 4, 0x78, 0x56, 0x34, 0x12}));
}

TEST_F(DriverRecordsLayout, OfABoolean)
{
    Write(L"B", DriverType::Boolean, 1);

    EXPECT_EQ(BytesOf(records), Bytes({0x0C, 0, 2, 'B', 0, 1, 0, 4, 1, 0, 0, 0}));
}

TEST_F(DriverRecordsLayout, OfATextHasNoTerminator)
{
    Write(L"\u00D6", L"x\u20AC");

    EXPECT_EQ(BytesOf(records), Bytes({0x0C, 0, 2, 0xD6, 0, 1, 2, 4, 'x', 0, 0xAC, 0x20}));
}

TEST_F(DriverRecordsLayout, OfEmptyTextsIsSixBytesLong)
{
    Write(L"", L"");

    EXPECT_EQ(BytesOf(records), Bytes({6, 0, 0, 1, 2, 0}));
}

TEST_F(DriverRecordsLayout, TellsALengthOfMoreThanOneByte)
{
    const std::wstring longest = TextOfLength(127);

    Write(longest, longest);

    EXPECT_EQ(BytesOf(records),
              Bytes({0x02, 0x02, 254}) + BytesOf(longest) + Bytes({1, 2, 254}) + BytesOf(longest));
}

TEST_F(DriverRecordsLayout, LosesTheHighBitsOfBothLengths)
{
    Write(TextOfLength(128), TextOfLength(128));
    Write(TextOfLength(130), TextOfLength(129));
    Write(TextOfLength(261), TextOfLength(259));

    EXPECT_EQ(BytesOf(records), Bytes({6, 0, 0, 1, 2, 0}) +                                              //
                                    Bytes({12, 0, 4, 'A', 0, 'B', 0, 1, 2, 2, 'A', 0}) +                 //
                                    Bytes({20,  0, 8,   'A', 0, 'B', 0, 'C', 0, 'D', 0, 1, 2, 6, 'A', 0, //
                                           'B', 0, 'C', 0}));
}

TEST_F(DriverRecordsLayout, HasNothingBetweenRecords)
{
    Write(L"a", DriverType::Boolean, 0);
    Write(L"b", L"");

    EXPECT_EQ(BytesOf(records), Bytes({12, 0, 2, 'a', 0, 1, 0, 4, 0, 0, 0, 0, 8, 0, 2, 'b', 0, 1, 2, 0}));
}

} // namespace
} // namespace norvepa::test
