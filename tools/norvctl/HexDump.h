#pragma once

// Bytes for people who want to see each of them.

#include <cstdint>
#include <span>
#include <string>

namespace norvctl
{

// A line for sixteen bytes: the offset of the first, the bytes, and those of them that are printable ASCII.
[[nodiscard]] std::string HexDump(std::span<const std::uint8_t> bytes);

// Two digits a byte, nothing between them.
[[nodiscard]] std::string HexDigits(std::span<const std::uint8_t> bytes);

} // namespace norvctl
