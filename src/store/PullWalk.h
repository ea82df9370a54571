#pragma once

// What the store's pull walks have in common: how a file is opened, and how an entry is found in a section.

#include "xml/PullReader.h"

#include <string>
#include <string_view>

namespace norvepa
{

inline constexpr std::wstring_view SpareSection = L"SpareSection";

// The section word of an argument that may be null or empty.
[[nodiscard]] std::wstring_view SectionOrSpare(const wchar_t* section) noexcept;

// The file of a store path: the name escaped, the extension added by the anywhere rule.
[[nodiscard]] Result StoreFile(const wchar_t* filePath, std::wstring& file);

// That file opened, the reader ahead of its first node.
[[nodiscard]] Result OpenStoreFile(const wchar_t* filePath, PullReader& reader);

// On to the next element of this name, at any depth. Empty elements are no obstacle here. False when the
// file has ended.
[[nodiscard]] bool SeekSection(PullReader& reader, std::wstring_view section) noexcept;

// Within the section last entered, on to the next entry of this name; its `Name` has been read, and
// `entry` is its element as the file spells it. False when the section has ended.
[[nodiscard]] bool SeekEntry(PullReader& reader, std::wstring_view section, std::wstring_view parameter,
                             std::wstring& entry);

// Within the section last entered, the value of the first entry of this name that has one.
[[nodiscard]] bool SeekEntryValue(PullReader& reader, std::wstring_view section, std::wstring_view parameter,
                                  std::wstring& value);

// Within the element last entered, on to its child `name`, and that child's text.
[[nodiscard]] bool ReadChildText(PullReader& reader, std::wstring_view endName, std::wstring_view name,
                                 std::wstring& text);

// True at the `ParamSection` last entered when its `Param` is this one.
[[nodiscard]] bool IsParamSectionOf(PullReader& reader, std::wstring_view param);

// On to the next `ParamSection` of this `Param`, at any depth. False when the file has ended.
[[nodiscard]] bool SeekParamSection(PullReader& reader, std::wstring_view param);

} // namespace norvepa
