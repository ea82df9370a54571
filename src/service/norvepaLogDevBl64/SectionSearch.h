#pragma once

// Where a parameter of a log device stands, as its file says.

#include <cstdint>
#include <string>

namespace norvepa
{

// The last section index that a search asks. Reading goes on to `UserInterface` and `UserInterface64`,
// writing doesn't.
inline constexpr std::uint32_t LastReadSection = 7;
inline constexpr std::uint32_t LastWrittenSection = 5;

struct FoundEntry
{
    std::wstring element; // the entry's element, as the file spells it
    std::wstring section;
};

// The first section of the store's table, from index 0 to `lastSection`, that holds the parameter; both texts
// are empty when none does.
[[nodiscard]] FoundEntry FindEntry(const std::wstring& file, const wchar_t* parameter,
                                   std::uint32_t lastSection);

} // namespace norvepa
