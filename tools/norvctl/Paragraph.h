#pragma once

// Texts in lines that fit a window.

#include <cstddef>
#include <string>
#include <vector>

namespace norvctl
{

// A text of so many columns at most, except where one word alone has more. Lines behind the first are
// indented.
[[nodiscard]] std::string Wrapped(const std::string& text, std::size_t width, std::size_t indent);

struct Definition
{
    std::string term;
    std::string text;
};

// A line each, or more, that ends with a line feed: the term, and its text in a column of its own.
[[nodiscard]] std::string AsText(const std::vector<Definition>& definitions, std::size_t width);

} // namespace norvctl
