#pragma once

// What the queries of parsed catalogue files collect from a tree.

#include "frame/Result.h"
#include "meta/cEpaBlCache.h"
#include "meta/cEpaBlElement.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa
{

// The nearest `ValueCollection` at or below an element; null when there is none.
[[nodiscard]] const cEpaBlElement* FindCollection(const cEpaBlElement& start);

// The texts of the `Value` elements of that collection; none when there is no collection.
[[nodiscard]] Answer GetValueCollection(const cEpaBlElement& start);

// The words and texts of the nearest `ParamSection` of a parameter, its value collection left out, each as
// word, ";", text; none when there is no such section.
[[nodiscard]] Answer GetSectionEntries(const cEpaBlElement& root, std::wstring_view parameter);

// The item at an index of an answer: PGSP_OK or PGSP_ERR_NO_MORE_ITEMS.
[[nodiscard]] Result ItemOf(const Answer& answer, std::uint32_t index, std::wstring& item);

} // namespace norvepa
