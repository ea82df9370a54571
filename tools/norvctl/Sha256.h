#pragma once

// The system's SHA-256.

#include <array>
#include <cstdint>
#include <string_view>

namespace norvctl
{

using Sha256Digest = std::array<std::uint8_t, 32>;

// Throws when the system refuses.
[[nodiscard]] Sha256Digest Sha256(std::string_view bytes);

} // namespace norvctl
