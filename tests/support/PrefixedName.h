#pragma once

// Names of catalogue files in the tables of tests: "{Prefix}X" is X behind a folder's prefix as its files
// have it, "{prefix}x" behind that in small letters, "{PREFIX}X" in capitals.

#include <string>
#include <string_view>

namespace norvepa::test
{

// The name with what stands for a prefix, wherever it stands, replaced.
[[nodiscard]] std::wstring PrefixedName(std::wstring_view name, std::wstring_view prefix);

} // namespace norvepa::test
