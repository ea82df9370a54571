#pragma once

// The system's own archives: packed and unpacked in memory.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

constexpr std::size_t LongestCabinetName = 255;    // bytes
constexpr std::size_t MostCabinetMembers = 65'000; // a number of 16 bits
constexpr std::size_t LargestCabinet = 1U << 30U;  // bytes, packed or not; the format ends at twice that

struct MemberToPack
{
    std::string name; // UTF-8
    std::uint32_t attributes;
    std::uint64_t writeTime; // FILETIME; a cabinet keeps it to two seconds, in local time
    std::string_view bytes;
};

struct UnpackedMember
{
    std::string name;
    std::string bytes;
};

// Within the limits above; throws when the system refuses. `tell` is told how many members are packed.
[[nodiscard]] std::string PackCabinet(const std::vector<MemberToPack>& members,
                                      const std::function<void(std::size_t)>& tell);

// Takes any bytes. Throws unless they are a whole cabinet that is within the limits. Nothing but memory is
// written, whatever the names are.
[[nodiscard]] std::vector<UnpackedMember> UnpackCabinet(std::string_view bytes);

} // namespace norvctl
