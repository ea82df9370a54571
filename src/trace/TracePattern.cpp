#include "trace/TracePattern.h"

#include "trace/AsciiCase.h"

namespace norvepa
{

namespace
{

constexpr std::size_t TextLimit = 256;
constexpr std::size_t None = std::string_view::npos;

bool IsStar(std::string_view pattern, std::size_t at) noexcept
{
    return at < pattern.size() && pattern[at] == '*';
}

// How many characters of the pattern stand for this one of the text; 0 when they don't. A backslash at
// the pattern's end has nothing to make literal and stands for itself.
std::size_t MatchOne(std::string_view pattern, std::size_t at, char character) noexcept
{
    if (at == pattern.size())
    {
        return 0;
    }
    if (pattern[at] == '?')
    {
        return 1;
    }
    const std::size_t length = pattern[at] == '\\' && at + 1 < pattern.size() ? 2 : 1;
    return AsciiLower(pattern[at + length - 1]) == AsciiLower(character) ? length : 0;
}

// Walks both sides at once. On a mismatch the last star takes one character more; the stars before it
// need not be asked again, so the time is at most the product of the lengths.
template <typename MayEnd>
bool Matches(std::string_view pattern, std::string_view text, MayEnd mayEnd) noexcept
{
    text = text.substr(0, TextLimit);
    std::size_t at = 0;
    std::size_t read = 0;
    std::size_t behindStar = None;
    std::size_t takenByStar = 0;

    while (true)
    {
        if (IsStar(pattern, at))
        {
            behindStar = ++at;
            takenByStar = read;
            continue;
        }
        if (at == pattern.size() && mayEnd(text.substr(read)))
        {
            return true;
        }

        const std::size_t matched = read < text.size() ? MatchOne(pattern, at, text[read]) : 0;
        if (matched != 0)
        {
            at += matched;
            ++read;
            continue;
        }
        if (behindStar == None || takenByStar == text.size())
        {
            return false;
        }
        at = behindStar;
        read = ++takenByStar;
    }
}

template <typename Match>
bool PassesAny(std::string_view value, std::string_view text, Match match) noexcept
{
    if (value.empty())
    {
        return true;
    }
    for (std::size_t count = 0; count < PatternList::MaximumPatterns; ++count)
    {
        const std::size_t blank = value.find(' ');
        if (match(value.substr(0, blank), text))
        {
            return true;
        }
        if (blank == None)
        {
            return false;
        }
        value.remove_prefix(blank + 1);
    }
    return false;
}

} // namespace

bool MatchesWhole(std::string_view pattern, std::string_view text) noexcept
{
    return Matches(pattern, text, [](std::string_view rest) { return rest.empty(); });
}

bool MatchesPrefix(std::string_view pattern, std::string_view text) noexcept
{
    return Matches(pattern, text, [](std::string_view) { return true; });
}

bool PatternList::PassesWhole(std::string_view text) const noexcept
{
    return PassesAny(m_value.view(), text, MatchesWhole);
}

bool PatternList::PassesPrefix(std::string_view text) const noexcept
{
    return PassesAny(m_value.view(), text, MatchesPrefix);
}

} // namespace norvepa
