#pragma once

// The right word for one that is wrong.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

// The candidate that a typing slip or two turns into the word, without regard to case; none when no candidate
// is that near. Of several that are equally near it is the first.
[[nodiscard]] std::optional<std::string> NearestTo(const std::string& word,
                                                   const std::vector<std::string>& candidates);

// "no such parameter: baudrat; did you mean baudrate?", or without the question when nothing is near.
[[nodiscard]] std::string NoSuch(std::string_view what, const std::string& word,
                                 const std::vector<std::string>& candidates);

} // namespace norvctl
