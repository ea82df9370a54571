#pragma once

// What a file of the store is, as people name it, by the place where it lies.

#include <optional>
#include <string>
#include <string_view>

namespace norvctl
{

enum class StorePart
{
    Data,     // the data root's folder "data"
    Catalogue // the program root's folder "meta"
};

struct StoreObject
{
    std::string
        kind; // "log device", "log name", "settings", "data", "board", "protocol", "template", "catalogue"
    std::string name; // empty for the settings

    bool operator==(const StoreObject&) const = default;
};

// By the path below the part's folder. None for what belongs to no object: files of other kinds, temporary
// log devices, and forms of files in the making.
[[nodiscard]] std::optional<StoreObject> ObjectAt(StorePart part, std::wstring_view path);

// "Kesselhaus", "log name Kessel#1", "settings".
[[nodiscard]] std::string InWords(const StoreObject& object);

} // namespace norvctl
