#include "frame/NameBuffers.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

using test::OutputBuffer;

// What the three operations have in common: the argument tests and the output rule.
class NameArguments : public testing::TestWithParam<test::NamedOperation>
{
};

INSTANTIATE_TEST_SUITE_P(All, NameArguments,
                         testing::Values(test::EscapeName, test::EscapeBareName, test::UnescapeName));

TEST_P(NameArguments, RefuseAMissingText)
{
    OutputBuffer buffer(20);

    EXPECT_EQ(GetParam().convert(nullptr, buffer.data(), &buffer.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetParam().convert(L"", buffer.data(), &buffer.length), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 20U);
}

TEST_P(NameArguments, RefuseAMissingBuffer)
{
    std::uint32_t length = 20;

    EXPECT_EQ(GetParam().convert(L"a", nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(length, 20U);
}

TEST_P(NameArguments, RefuseAMissingLength)
{
    OutputBuffer buffer(20);

    EXPECT_EQ(GetParam().convert(L"a", buffer.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(buffer.isUntouched());
}

TEST_P(NameArguments, RefuseALengthOfZeroInsteadOfAnsweringTheLengthNeeded)
{
    OutputBuffer buffer(0);

    EXPECT_EQ(GetParam().convert(L"a", buffer.data(), &buffer.length), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(buffer.length, 0U);
}

TEST_P(NameArguments, NeedRoomForOneCharacterMoreThanTheText)
{
    OutputBuffer exact(5);
    OutputBuffer enough(6);

    EXPECT_EQ(GetParam().convert(L"D\\abc", exact.data(), &exact.length), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(GetParam().convert(L"D\\abc", enough.data(), &enough.length), PGSP_OK);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 5U);
    EXPECT_EQ(enough.text(), L"D\\abc");
    EXPECT_EQ(enough.length, 5U);
}

TEST(NameLengths, CountWhatComesOut)
{
    OutputBuffer escaped(8);
    OutputBuffer unescaped(3);

    EXPECT_EQ(NorvXMLEscapeName(L"a#b", escaped.data(), &escaped.length), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLUnescapeName(L"a(nmbr)", unescaped.data(), &unescaped.length), PGSP_OK);

    EXPECT_EQ(escaped.length, 8U);
    EXPECT_EQ(unescaped.text(), L"a#");
}

class NameOfPathLength : public testing::TestWithParam<test::NamedOperation>
{
};

INSTANTIATE_TEST_SUITE_P(Limited, NameOfPathLength,
                         testing::Values(test::EscapeBareName, test::UnescapeName));

TEST_P(NameOfPathLength, MayComeOutWith259Characters)
{
    OutputBuffer buffer(1000);

    EXPECT_EQ(GetParam().convert(std::wstring(259, L'n').c_str(), buffer.data(), &buffer.length), PGSP_OK);

    EXPECT_EQ(buffer.text(), std::wstring(259, L'n'));
}

TEST_P(NameOfPathLength, IsRefusedWith260CharactersWhateverTheBufferHolds)
{
    OutputBuffer buffer(1000);

    EXPECT_EQ(GetParam().convert(std::wstring(260, L'n').c_str(), buffer.data(), &buffer.length),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 260U);
}

TEST(NameLengths, OfAPathToEscapeAreLimitedByTheBufferAlone)
{
    const std::wstring path = L"C:\\" + std::wstring(400, L'p');

    EXPECT_EQ(test::Converted(NorvXMLEscapeName, path), path);
}

} // namespace
} // namespace norvepa
