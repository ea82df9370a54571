#pragma once

// Comparison without regard to case for the words and patterns of the trace settings: ASCII letters
// only, so that the locale of the process, which isn't ours, decides nothing.

#include <algorithm>
#include <string_view>

namespace norvepa
{

[[nodiscard]] constexpr char AsciiLower(char character) noexcept
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

[[nodiscard]] constexpr bool EqualIgnoringAsciiCase(std::string_view left, std::string_view right) noexcept
{
    return std::ranges::equal(left, right, {}, AsciiLower, AsciiLower);
}

} // namespace norvepa
