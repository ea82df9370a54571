#pragma once

// A question for each export that can run out of memory, about the store of SmallStore. Each is answered
// with PGSP_OK.

#include "SmallStore.h"

#include <vector>

namespace norvepa::test
{

[[nodiscard]] const std::vector<Question>& Reads();

// Those that change one file in one step; the two that take two steps have tests of their own.
[[nodiscard]] const std::vector<Question>& Changes();

} // namespace norvepa::test
