#pragma once

// A question for each export that can run out of memory, about the store of SmallStore. Each is answered
// with PGSP_OK.

#include "SmallStore.h"

#include <vector>

namespace norvepa::test
{

// The flag for the section UserInterface, where the store's files have their links.
inline constexpr std::int32_t Links = 1;

[[nodiscard]] const std::vector<Question>& Reads();

// Those that are made whole or not at all; the two that may end between two steps have tests of their own.
// The last one removes what most of the others change.
[[nodiscard]] const std::vector<Question>& Changes();

} // namespace norvepa::test
