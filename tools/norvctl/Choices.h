#pragma once

// The values of a parameter that a log device's catalogue lists to choose from.

#include <string>
#include <vector>

namespace norvctl
{

// Its board's, or else its protocol's. Throws with what was asked for.
[[nodiscard]] std::vector<std::string> ChoicesOf(const std::string& device, const std::string& parameter);

// Those that both have.
[[nodiscard]] std::vector<std::string> CommonChoicesOf(const std::string& device,
                                                       const std::string& parameter);

} // namespace norvctl
