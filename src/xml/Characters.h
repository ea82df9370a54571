#pragma once

// What XML can hold at all. An engine may let through what it can't read back, and a file saved with it is
// lost as a whole: names and texts are asked about here first.

#include <string_view>

namespace norvepa
{

// A name for an element or attribute, with at most one prefix that isn't reserved.
[[nodiscard]] bool IsXmlName(std::wstring_view name) noexcept;

// No control characters but tab and line ends, no half of a pair, none of the two that are no characters.
[[nodiscard]] bool IsXmlText(std::wstring_view text) noexcept;

} // namespace norvepa
