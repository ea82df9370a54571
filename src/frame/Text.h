#pragma once

// Comparison without regard to case, one function per rule, and the splitting of keys and paths.
//
// Letters of all alphabets fold by the system's table, which is also the file system's; only the rule
// that says so folds the ASCII letters alone. No language's own rules apply.

#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

// Whole strings: element, attribute and parameter names, stored values.
[[nodiscard]] bool EqualNoCase(std::wstring_view left, std::wstring_view right) noexcept;

// At most the first `limit` characters of each, as for fields and keys of a fixed width.
[[nodiscard]] bool EqualNoCase(std::wstring_view left, std::wstring_view right, std::size_t limit) noexcept;

// True when a text holds another anywhere, in this case.
[[nodiscard]] constexpr bool Holds(std::wstring_view text, std::wstring_view part) noexcept
{
    return text.find(part) != std::wstring_view::npos;
}

// Every letter that has a small form in that form, by the same table. As long as `text`.
[[nodiscard]] std::wstring ToLower(std::wstring_view text);

// The parts between backslashes. A run of backslashes is one, leading ones are skipped, and nothing
// follows a trailing one.
[[nodiscard]] std::vector<std::wstring> Tokenize(std::wstring_view text);

} // namespace norvepa
