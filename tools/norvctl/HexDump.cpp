#include "HexDump.h"

#include "Reads.h"

#include <algorithm>
#include <fmt/format.h>
#include <vector>

namespace norvctl
{

namespace
{

constexpr std::size_t LineBytes = 16;

char Printable(std::uint8_t byte)
{
    return byte >= 0x20 && byte < 0x7F ? static_cast<char>(byte) : '.';
}

std::string Line(std::size_t offset, std::span<const std::uint8_t> bytes)
{
    std::string text(bytes.size(), '\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(), &Printable);
    return fmt::format("{:08x}  {:<47}  {}", offset, fmt::format("{:02x}", fmt::join(bytes, " ")), text);
}

} // namespace

std::string HexDump(std::span<const std::uint8_t> bytes)
{
    std::vector<std::string> lines;
    for (std::size_t offset = 0; offset < bytes.size(); offset += LineBytes)
    {
        lines.push_back(Line(offset, bytes.subspan(offset, std::min(LineBytes, bytes.size() - offset))));
    }
    return AsLines(lines);
}

std::string HexDigits(std::span<const std::uint8_t> bytes)
{
    return fmt::format("{:02x}", fmt::join(bytes, ""));
}

} // namespace norvctl
