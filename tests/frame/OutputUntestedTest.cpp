#include "frame/Arguments.h"
#include "support/OutputBuffer.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

using test::OutputBuffer;

TEST(CopyOutUntested, CopiesATextWithItsTerminatorIntoOneCharacterMore)
{
    OutputBuffer buffer(4);

    EXPECT_EQ(CopyOutUntested(L"abc", buffer.data(), &buffer.length), PGSP_OK);

    EXPECT_EQ(buffer.text(), L"abc");
    EXPECT_EQ(buffer.length, 3U);
}

TEST(CopyOutUntested, TellsTheLengthNeededOfABufferThatIsTooShort)
{
    for (const std::uint32_t capacity : {0U, 1U, 3U})
    {
        OutputBuffer buffer(capacity);

        EXPECT_EQ(CopyOutUntested(L"abc", buffer.data(), &buffer.length), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(buffer.isUntouched());
        EXPECT_EQ(buffer.length, 3U);
    }
}

TEST(CopyOutUntested, TellsTheLengthNeededWithoutABufferThatCouldHoldTheText)
{
    for (const std::uint32_t capacity : {0U, 1U, 3U})
    {
        std::uint32_t length = capacity;

        EXPECT_EQ(CopyOutUntested(L"abc", nullptr, &length), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_EQ(length, 3U);
    }
}

TEST(CopyOutUntested, CopiesNothingIntoABufferThatIsNotThere)
{
    for (const std::uint32_t capacity : {4U, 5U, 0xFFFFFFFFU})
    {
        std::uint32_t length = capacity;

        EXPECT_EQ(CopyOutUntested(L"abc", nullptr, &length), PGSP_OK);

        EXPECT_EQ(length, capacity);
    }
}

TEST(CopyOutUntested, RefusesAMissingLengthWithABufferOrWithout)
{
    OutputBuffer buffer(10);

    EXPECT_EQ(CopyOutUntested(L"abc", buffer.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(CopyOutUntested(L"", buffer.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(CopyOutUntested(L"abc", nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(buffer.isUntouched());
}

TEST(CopyOutUntested, NeedsOneCharacterForAnEmptyText)
{
    OutputBuffer buffer(1);
    std::uint32_t none = 0;
    std::uint32_t one = 1;

    EXPECT_EQ(CopyOutUntested(L"", nullptr, &none), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(CopyOutUntested(L"", nullptr, &one), PGSP_OK);
    EXPECT_EQ(CopyOutUntested(L"", buffer.data(), &buffer.length), PGSP_OK);

    EXPECT_EQ(buffer.text(), L"");
    EXPECT_EQ(buffer.length, 0U);
    EXPECT_EQ(none, 0U);
    EXPECT_EQ(one, 1U);
}

} // namespace
} // namespace norvepa
