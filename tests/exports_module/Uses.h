#pragma once

// What callers do with the library between its load and its unload, on the sample store.

#include "support/LoadedLibrary.h"
#include "support/StoreRoots.h"

#include <iosfwd>

#include <functional>
#include <string>
#include <vector>

namespace norvepa::test
{

struct Use
{
    std::string name;
    std::function<void(const Exports&)> call; // expects that all succeeds
};

void PrintTo(const Use& use, std::ostream* out);

// One of each family: what each leaves in memory differs.
[[nodiscard]] const std::vector<Use>& Uses();

// What an answer looks like, in one word: the text, or "(result N)".
[[nodiscard]] std::wstring DeviceValue(const Exports& library, const wchar_t* parameter);

} // namespace norvepa::test
