#pragma once

// A question for each export that can run out of memory, about the store of SmallStore. Each is answered
// with PGSP_OK.

#include "SmallStore.h"

#include <vector>

namespace norvepa::test
{

// The flag for the section UserInterface, where the store's files have their links.
inline constexpr std::int32_t Links = 1;

[[nodiscard]] const std::vector<Question>& StoreReads();     // of what users and tools have written
[[nodiscard]] const std::vector<Question>& CatalogueReads(); // of what is shipped
[[nodiscard]] const std::vector<Question>& Reads();          // both

// Those that are made whole or not at all; the two that may end between two steps have tests of their own.
// The last ones remove what most of the others change.
[[nodiscard]] const std::vector<Question>& Changes();

// Those that are made value by value, each in the file of one log device; what is written ahead of a failure
// stays.
struct Stepwise
{
    Question question;
    const wchar_t* logDevice;
    const wchar_t* putBack = nullptr; // the parameter that gets its old value again, if one does
};

[[nodiscard]] const std::vector<Stepwise>& StepwiseChanges();

} // namespace norvepa::test
