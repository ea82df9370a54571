#include "DisplayText.h"

#include <algorithm>
#include <array>

namespace norvctl
{

namespace
{

struct Range
{
    char32_t first;
    char32_t last;
};

constexpr std::array<Range, 7> Marks{{{0x0300, 0x036F},
                                      {0x0483, 0x0489},
                                      {0x0591, 0x05BD},
                                      {0x064B, 0x065F},
                                      {0x200B, 0x200F},
                                      {0x20D0, 0x20F0},
                                      {0xFE00, 0xFE0F}}};

constexpr std::array<Range, 9> WideOnes{{{0x1100, 0x115F},
                                         {0x2E80, 0x303E},
                                         {0x3041, 0xA4CF},
                                         {0xAC00, 0xD7A3},
                                         {0xF900, 0xFAFF},
                                         {0xFE30, 0xFE6F},
                                         {0xFF00, 0xFF60},
                                         {0x1F300, 0x1FAFF},
                                         {0x20000, 0x3FFFD}}};

template <std::size_t Count>
bool IsIn(const std::array<Range, Count>& ranges, char32_t character)
{
    return std::any_of(ranges.begin(), ranges.end(), [=](const Range& range) {
        return range.first <= character && character <= range.last;
    });
}

std::size_t WidthOf(char32_t character)
{
    if (IsIn(Marks, character))
    {
        return 0;
    }
    return IsIn(WideOnes, character) ? 2 : 1;
}

struct Character
{
    char32_t code;
    std::size_t bytes;
};

// The one that a text begins with. What isn't UTF-8 is taken byte by byte.
Character FirstOf(std::string_view utf8)
{
    const auto first = static_cast<unsigned char>(utf8.front());
    const std::size_t bytes = first >= 0xF0 ? 4U : first >= 0xE0 ? 3U : first >= 0xC0 ? 2U : 1U;
    if (bytes == 1 || bytes > utf8.size())
    {
        return {first, 1};
    }
    char32_t code = first & (0xFFU >> (bytes + 1));
    for (std::size_t i = 1; i < bytes; ++i)
    {
        code = code << 6U | (static_cast<unsigned char>(utf8[i]) & 0x3FU);
    }
    return {code, bytes};
}

} // namespace

std::size_t DisplayWidth(std::string_view utf8)
{
    std::size_t width = 0;
    while (!utf8.empty())
    {
        const Character character = FirstOf(utf8);
        width += WidthOf(character.code);
        utf8.remove_prefix(character.bytes);
    }
    return width;
}

std::string Shortened(const std::string& utf8, std::size_t columns)
{
    if (DisplayWidth(utf8) <= columns)
    {
        return utf8;
    }
    if (columns == 0)
    {
        return {};
    }
    std::size_t width = 1; // the ellipsis
    std::size_t end = 0;
    while (end < utf8.size())
    {
        const Character character = FirstOf(std::string_view(utf8).substr(end));
        width += WidthOf(character.code);
        if (width > columns)
        {
            break;
        }
        end += character.bytes;
    }
    return utf8.substr(0, end) + "\u2026";
}

std::string Padded(const std::string& utf8, std::size_t columns)
{
    const std::size_t width = DisplayWidth(utf8);
    return width < columns ? utf8 + std::string(columns - width, ' ') : utf8;
}

std::string OnOneLine(std::string_view utf8)
{
    std::string line(utf8);
    std::replace_if(
        line.begin(), line.end(), [](unsigned char each) { return each < 0x20 || each == 0x7F; }, ' ');
    return line;
}

} // namespace norvctl
