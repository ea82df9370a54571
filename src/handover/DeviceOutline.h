#pragma once

// What a log device's document holds for a driver, gathered in one walk: what is to be loaded, and the
// parameters section by section.
//
// Callers may rely on: both ways to an outline give the same one. Names of elements are compared exactly.

#include "xml/Document.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

// As it stands in a record.
enum class DriverType : std::uint8_t
{
    Boolean = 0,
    Integer = 1,
    String = 2
};

struct EntryWord
{
    std::string_view word;
    DriverType type;
};

inline constexpr std::array<EntryWord, 3> EntryWords{{{"Parameter", DriverType::String},
                                                      {"ParameterInt", DriverType::Integer},
                                                      {"ParameterBool", DriverType::Boolean}}};

// The type that an entry's element word stands for; none for any other element. Of either width, since one
// way to an outline meets it in each.
template <typename Character>
[[nodiscard]] std::optional<DriverType> DriverTypeOf(std::basic_string_view<Character> word) noexcept
{
    const auto row = std::ranges::find_if(
        EntryWords, [=](const EntryWord& each) { return std::ranges::equal(each.word, word); });
    return row == EntryWords.end() ? std::nullopt : std::optional(row->type);
}

struct DeviceOutline
{
    // A piece of `texts`: a device of ten thousand parameters costs no allocation for each.
    struct Text
    {
        std::size_t begin;
        std::size_t size;
    };

    // What isn't there leaves what was met last in force; of several, the last counts.
    struct Parameter
    {
        DriverType type;
        std::optional<Text> name;
        std::optional<Text> value;
    };

    // An element that has parameters as children, whatever it is called.
    struct Section
    {
        std::wstring word;
        std::optional<std::wstring> subdevice; // the `SubdevName` of a `Subdevice`
        std::vector<Parameter> parameters;
    };

    std::vector<std::wstring> load; // the entries of every `Load`
    std::vector<Section> sections;  // in the order of their begin tags; the root is none
    std::wstring texts;

    [[nodiscard]] std::wstring_view view(Text text) const noexcept
    {
        return std::wstring_view(texts).substr(text.begin, text.size);
    }
};

// Asks the engine node by node.
[[nodiscard]] DeviceOutline OutlineOf(const Document& document);

// The same from the bytes that the document was loaded from, in a twentieth of the time. None for a document
// that has to be asked after all; see PlainReader.
[[nodiscard]] std::optional<DeviceOutline> OutlineOf(std::string_view bytes);

} // namespace norvepa
