#include "frame/Arguments.h"
#include "support/OutputBuffer.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

using test::OutputBuffer;

TEST(CopyOut, CopiesATextWithItsTerminatorIntoOneCharacterMore)
{
    OutputBuffer buffer(4);

    EXPECT_EQ(CopyOut(L"abc", buffer.data(), &buffer.length), PGSP_OK);

    EXPECT_EQ(buffer.text(), L"abc");
    EXPECT_EQ(buffer.length, 3U);
}

TEST(CopyOut, EndsAtATerminatorOfTheTextsOwn)
{
    wchar_t buffer[] = L"######";
    std::uint32_t length = 6;

    EXPECT_EQ(CopyOut({L"a\0bc", 4}, buffer, &length), PGSP_OK);

    EXPECT_EQ(std::wstring_view(buffer, 6), std::wstring_view(L"a\0####", 6));
    EXPECT_EQ(length, 4U);
}

TEST(CopyOut, TellsTheLengthNeededWhenExactlyThatIsOffered)
{
    OutputBuffer buffer(3);

    EXPECT_EQ(CopyOut(L"abc", buffer.data(), &buffer.length), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 3U);
}

TEST(CopyOut, TellsTheLengthNeededWhenNothingIsOffered)
{
    OutputBuffer buffer(0);

    EXPECT_EQ(CopyOut(L"abc", buffer.data(), &buffer.length), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 3U);
}

TEST(CopyOut, GivesAnEmptyTextWithLengthZero)
{
    OutputBuffer buffer(1);

    EXPECT_EQ(CopyOut(L"", buffer.data(), &buffer.length), PGSP_OK);

    EXPECT_EQ(buffer.text(), L"");
    EXPECT_EQ(buffer.length, 0U);
}

TEST(CopyOut, NeedsOneCharacterForAnEmptyText)
{
    OutputBuffer buffer(0);

    EXPECT_EQ(CopyOut(L"", buffer.data(), &buffer.length), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(buffer.length, 0U);
}

TEST(CopyOut, LeavesTheBufferBehindTheTerminatorAlone)
{
    OutputBuffer buffer(10);
    buffer.data()[3] = L'z';

    EXPECT_EQ(CopyOut(L"ab", buffer.data(), &buffer.length), PGSP_OK);

    EXPECT_EQ(buffer.text(), L"ab");
    EXPECT_EQ(buffer.data()[3], L'z');
}

TEST(CopyOut, CopiesAPartOfALongerText)
{
    OutputBuffer buffer(3);

    EXPECT_EQ(CopyOut(std::wstring_view(L"abcdef").substr(1, 2), buffer.data(), &buffer.length), PGSP_OK);

    EXPECT_EQ(buffer.text(), L"bc");
}

} // namespace
} // namespace norvepa
