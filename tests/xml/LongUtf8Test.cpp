// A file of UTF-8 that is longer than what an engine reads at once says what it says wherever a reading ends:
// one engine takes the character there for two, when it isn't ASCII.

#include "xml/PullScene.h"

#include <array>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

constexpr std::size_t ReadAtOnce = 8188; // bytes of that engine
constexpr std::array Characters{"\xC3\xA4"sv, "\xE6\xB3\xB5"sv, "\xF0\x9F\x92\xA9"sv};

class LongUtf8 : public PullScene
{
protected:
    // Compared whole, but shown as no more than where they differ.
    void ExpectToSay(const std::string& text) const
    {
        PullReader reader = InsideRoot("<a>" + text + "</a>");
        std::wstring told;
        ASSERT_TRUE(XmlReadText(reader, L"a", told));
        EXPECT_TRUE(ToUtf8(told) == text) << ToUtf8(told).size() << " bytes instead of " << text.size();
        EXPECT_EQ(RestOf(reader), "</a>");
    }
};

TEST_F(LongUtf8, SaysItWithACharacterAtTheEndOfAReading)
{
    for (const std::size_t end : {ReadAtOnce, 2 * ReadAtOnce})
    {
        for (std::size_t at = end - 6; at <= end + 2; ++at)
        {
            for (const std::string_view character : Characters)
            {
                SCOPED_TRACE(std::string(character) + " at " + std::to_string(at));
                const std::string ahead(at - 3, 'x'); // behind the root's tag
                ExpectToSay(ahead + std::string(character) + std::string(ReadAtOnce, 'y'));
            }
        }
    }
}

TEST_F(LongUtf8, SaysItInUtf16WhateverItsDeclarationSays)
{
    std::wstring text;
    while (text.size() < 2 * ReadAtOnce)
    {
        text += L"\u00E4x\u6CF5\U0001F4A9";
    }
    for (const wchar_t* const declaration : {L"", L"<?xml version='1.0' encoding='UTF-16'?>"})
    {
        const std::wstring file = L"\uFEFF" + std::wstring(declaration) + L"<a>" + text + L"</a>";
        PullReader reader =
            InsideRoot({reinterpret_cast<const char*>(file.data()), file.size() * sizeof(wchar_t)});
        std::wstring told;

        ASSERT_TRUE(XmlReadText(reader, L"a", told));

        EXPECT_TRUE(told == text) << told.size();
        EXPECT_EQ(RestOf(reader), "</a>");
    }
}

} // namespace
} // namespace norvepa::test
