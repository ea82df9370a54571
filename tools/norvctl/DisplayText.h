#pragma once

// Text as a terminal shows it: how many columns it takes, and what of it fits into fewer.

#include <cstddef>
#include <string>
#include <string_view>

namespace norvctl
{

// Columns of a line of UTF-8: a combining mark takes none, a character of East Asia two.
[[nodiscard]] std::size_t DisplayWidth(std::string_view utf8);

// A text of at most so many columns; one that is cut ends with an ellipsis.
[[nodiscard]] std::string Shortened(const std::string& utf8, std::size_t columns);

// Blanks behind it up to so many columns; a text that is wider stays as it is.
[[nodiscard]] std::string Padded(const std::string& utf8, std::size_t columns);

// Line feeds, tabs and other control characters as blanks: a value of the store must not move the cursor.
[[nodiscard]] std::string OnOneLine(std::string_view utf8);

} // namespace norvctl
