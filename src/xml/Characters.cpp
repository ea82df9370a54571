#include "xml/Characters.h"

#include <algorithm>
#include <array>
#include <span>

namespace norvepa
{

namespace
{

struct Range
{
    char32_t first;
    char32_t last;
};

constexpr std::array<Range, 5> TextCharacters{{
    {0x9, 0xA},
    {0xD, 0xD},
    {0x20, 0xD7FF},
    {0xE000, 0xFFFD},
    {0x10000, 0x10FFFF},
}};

// The colon, which both tables of the standard hold, parts the prefix from the name here.
constexpr std::array<Range, 15> NameStarts{{
    {L'A', L'Z'},
    {L'_', L'_'},
    {L'a', L'z'},
    {0xC0, 0xD6},
    {0xD8, 0xF6},
    {0xF8, 0x2FF},
    {0x370, 0x37D},
    {0x37F, 0x1FFF},
    {0x200C, 0x200D},
    {0x2070, 0x218F},
    {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF},
    {0xF900, 0xFDCF},
    {0xFDF0, 0xFFFD},
    {0x10000, 0xEFFFF},
}};

constexpr std::array<Range, 6> FurtherNameParts{{
    {L'-', L'-'},
    {L'.', L'.'},
    {L'0', L'9'},
    {0xB7, 0xB7},
    {0x300, 0x36F},
    {0x203F, 0x2040},
}};

bool IsIn(std::span<const Range> ranges, char32_t character) noexcept
{
    return std::any_of(ranges.begin(), ranges.end(), [=](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

// Takes the first character off a text that isn't empty. Half of a pair stands for itself, which no range
// holds.
char32_t TakeCharacter(std::wstring_view& text) noexcept
{
    const char32_t first = text.front();
    text.remove_prefix(1);
    const bool isHigh = first >= 0xD800 && first <= 0xDBFF;
    if (!isHigh || text.empty() || text.front() < 0xDC00 || text.front() > 0xDFFF)
    {
        return first;
    }
    const char32_t second = text.front();
    text.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

bool IsUnprefixedName(std::wstring_view name) noexcept
{
    if (name.empty() || !IsIn(NameStarts, TakeCharacter(name)))
    {
        return false;
    }
    while (!name.empty())
    {
        const char32_t character = TakeCharacter(name);
        if (!IsIn(NameStarts, character) && !IsIn(FurtherNameParts, character))
        {
            return false;
        }
    }
    return true;
}

} // namespace

bool IsXmlName(std::wstring_view name) noexcept
{
    const std::size_t colon = name.find(L':');
    if (colon == std::wstring_view::npos)
    {
        return IsUnprefixedName(name);
    }
    const std::wstring_view prefix = name.substr(0, colon);
    return prefix != L"xml" && prefix != L"xmlns" && IsUnprefixedName(prefix) &&
           IsUnprefixedName(name.substr(colon + 1));
}

bool IsXmlText(std::wstring_view text) noexcept
{
    while (!text.empty())
    {
        if (!IsIn(TextCharacters, TakeCharacter(text)))
        {
            return false;
        }
    }
    return true;
}

} // namespace norvepa
