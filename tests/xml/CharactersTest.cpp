#include "xml/Characters.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{
namespace
{

using XmlNames = testing::TestWithParam<std::wstring>;
using NoXmlNames = testing::TestWithParam<std::wstring>;
using XmlTexts = testing::TestWithParam<std::wstring>;
using NoXmlTexts = testing::TestWithParam<std::wstring>;

TEST_P(XmlNames, AreNames)
{
    EXPECT_TRUE(IsXmlName(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Characters, XmlNames,
                         testing::Values(L"a", L"Z", L"_", L"ParameterInt", L"a-b.c_9", L"\u00C4rger",
                                         L"\u00E9t\u00E9", L"a\u00B7", L"a\u0300", L"\u03A9", L"\u4E2D\uD7A3",
                                         L"\U00010000", L"a\U000EFFFF", L"o:q", L"xmlnsx:a", L"xmlns",
                                         L"xml"));

TEST_P(NoXmlNames, AreNone)
{
    EXPECT_FALSE(IsXmlName(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Characters, NoXmlNames,
                         testing::Values(L"", L" ", L"a b", L" a", L"a\t", L"1a", L"-a", L".a", L"\u00B7",
                                         L"\u0300a", L"a<", L"a>", L"a/", L"a\"", L"a&", L"a=", L"a@", L"a[",
                                         L"a{", L"\u00D7", L"a\u00F7", L"a\u00A0", L"\u2028", L"a\uFFFE",
                                         L"a\uFFFF", L":", L":a", L"a:", L"a:b:c", L"a:1", L"1:a", L"xml:a",
                                         L"xmlns:a", L"a\U000F0000", std::wstring(L"a\0", 2)));

TEST_P(XmlTexts, AreTexts)
{
    EXPECT_TRUE(IsXmlText(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Characters, XmlTexts,
                         testing::Values(L"", L" ", L"\t\r\n", L"<&>\"']]>", L"\u007F\u0080\u0085\u2028",
                                         L"\uD7FF\uE000\uFFFD", L"\U00010000", L"\U0010FFFF",
                                         L"\U0001F600 \u00B0C"));

TEST_P(NoXmlTexts, AreNone)
{
    EXPECT_FALSE(IsXmlText(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Characters, NoXmlTexts,
                         testing::Values(std::wstring(1, L'\0'), L"\x01", L"a\x08", L"\x0B", L"\x0C", L"\x0E",
                                         L"\x1F", L"\uFFFE", L"\uFFFF", std::wstring(1, wchar_t{0xD800}),
                                         std::wstring(1, wchar_t{0xDC00}),
                                         std::wstring{wchar_t{0xD83D}, L'a'},
                                         std::wstring{wchar_t{0xDE00}, wchar_t{0xD83D}}));

} // namespace
} // namespace norvepa::test
