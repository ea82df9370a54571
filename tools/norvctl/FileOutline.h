#pragma once

// Which values stand in which section of a file: what an enumeration of a log device or of a template, which
// runs over the sections, doesn't tell.

#include "Reads.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace norvctl
{

// The sections that an enumeration tells the values of, in its order; each where it first stands. Behind them
// it tells the attributes of the root.
inline constexpr std::array<const wchar_t*, 5> EnumeratedSections{
    L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings", L"SpareSection"};

struct OutlineEntry
{
    std::string name;
    std::string value;
    std::size_t kind; // an enumeration tells those of a section by their kinds
};

struct OutlineSection
{
    std::string name;
    std::vector<OutlineEntry> entries; // in the file's order
};

struct FileOutline
{
    std::string root;
    std::vector<OutlineSection> sections; // those that are enumerated, in the file's order
    std::vector<OutlineSection> subdevices;
};

// Of a file's bytes; none when they aren't well-formed.
[[nodiscard]] std::optional<FileOutline> OutlineOf(const std::string& xml);

struct SectionValues
{
    std::string name; // of a section; of the root, for its attributes
    std::vector<NameAndValue> values;
};

// What an enumeration has told, each value once, in the file's order: the attributes of the root, and then
// the sections. One group without a name when the outline isn't that of the file that was enumerated.
[[nodiscard]] std::vector<SectionValues> Grouped(const std::vector<NameAndValue>& enumerated,
                                                 const std::optional<FileOutline>& outline);

} // namespace norvctl
