#pragma once

// The filters' patterns: "*" stands for any run, "?" for any one character, a backslash makes the next
// character literal. Case doesn't count, and neither does what stands behind the text's first 256
// characters.

#include "trace/FixedText.h"

#include <cstddef>
#include <string_view>

namespace norvepa
{

[[nodiscard]] bool MatchesWhole(std::string_view pattern, std::string_view text) noexcept;
[[nodiscard]] bool MatchesPrefix(std::string_view pattern, std::string_view text) noexcept;

// The patterns of one filter, as the registry has them: one value, split at each single blank. Two
// blanks in a row therefore make an empty pattern, which is the prefix of everything.
class PatternList
{
public:
    static constexpr std::size_t MaximumPatterns = 100; // the rest is ignored
    static constexpr std::size_t MaximumLength = 260;

    constexpr PatternList() noexcept = default;
    constexpr PatternList(std::string_view value) noexcept : m_value(value) {}

    // An empty list passes everything; any other when one of its patterns matches.
    [[nodiscard]] bool PassesWhole(std::string_view text) const noexcept;
    [[nodiscard]] bool PassesPrefix(std::string_view text) const noexcept;

private:
    FixedText<MaximumLength> m_value;
};

} // namespace norvepa
