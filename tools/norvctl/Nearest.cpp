#include "Nearest.h"

#include "Text.h"

#include <algorithm>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

// Letters that have to be put in, left out, replaced or swapped with their neighbour.
std::size_t SlipsBetween(std::wstring_view left, std::wstring_view right)
{
    std::vector<std::size_t> beforeLast(right.size() + 1);
    std::vector<std::size_t> last(right.size() + 1);
    std::vector<std::size_t> present(right.size() + 1);
    for (std::size_t column = 0; column <= right.size(); ++column)
    {
        last[column] = column;
    }
    for (std::size_t row = 1; row <= left.size(); ++row)
    {
        present[0] = row;
        for (std::size_t column = 1; column <= right.size(); ++column)
        {
            const bool isSame = left[row - 1] == right[column - 1];
            const std::size_t replaced = last[column - 1] + (isSame ? 0 : 1);
            present[column] = std::min({last[column] + 1, present[column - 1] + 1, replaced});
            const bool isSwapped = row > 1 && column > 1 && left[row - 1] == right[column - 2] &&
                                   left[row - 2] == right[column - 1];
            if (isSwapped)
            {
                present[column] = std::min(present[column], beforeLast[column - 2] + 1);
            }
        }
        std::swap(beforeLast, last);
        std::swap(last, present);
    }
    return last[right.size()];
}

// A slip in a short word makes another word of it; a long one bears more.
std::size_t BearableSlips(std::size_t letters)
{
    return letters <= 2 ? 0 : letters <= 4 ? 1 : letters <= 9 ? 2 : 3;
}

} // namespace

std::optional<std::string> NearestTo(const std::string& word, const std::vector<std::string>& candidates)
{
    const std::wstring lower = ToLower(ToWide(word));
    std::size_t bearable = BearableSlips(lower.size());
    std::optional<std::string> nearest;
    for (const std::string& candidate : candidates)
    {
        const std::wstring other = ToLower(ToWide(candidate));
        const std::size_t longer = std::max(other.size(), lower.size());
        if (longer - std::min(other.size(), lower.size()) > bearable)
        {
            continue;
        }
        const std::size_t slips = SlipsBetween(lower, other);
        if (slips < bearable || (slips == bearable && !nearest))
        {
            bearable = slips;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string NoSuch(std::string_view what, const std::string& word, const std::vector<std::string>& candidates)
{
    const std::optional<std::string> nearest = NearestTo(word, candidates);
    const std::string text = fmt::format("no such {}: {}", what, word);
    return nearest ? fmt::format("{}; did you mean {}?", text, *nearest) : text;
}

} // namespace norvctl
