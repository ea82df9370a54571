#pragma once

// Damage done to the bytes of a file, as disks, editors and foreign programs do it: pieces lost, doubled or
// moved, bytes turned, markup put where none belongs. The same number does the same damage every time.

#include <cstdint>
#include <string>

namespace norvepa::test
{

[[nodiscard]] std::string Damaged(const std::string& whole, std::uint32_t number);

} // namespace norvepa::test
