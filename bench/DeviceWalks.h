#pragma once

// The two ways to all log devices of a store: one by one, and by the identity of their board.

#include <cstddef>
#include <cstdint>

namespace norvepa::bench
{

// One step of the enumeration; false behind the last log device. Throws when the library refuses.
[[nodiscard]] bool IsThereADevice(std::uint32_t index);

// The first look-up behind a change of the folder, which reads each log device once. Throws when it
// finds fewer.
void LookUpAnew(std::size_t devices);

} // namespace norvepa::bench
