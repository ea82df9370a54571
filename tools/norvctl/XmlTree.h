#pragma once

// An XML file as a tree, for what no export answers: where a value stands, and files that are no log device.
// It takes UTF-8, and UTF-16 with its mark, and is strict: what isn't well-formed to its end isn't taken, as
// of a file that is just being written.

#include "Reads.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

struct XmlElement
{
    std::string name;                     // without a prefix
    std::vector<NameAndValue> attributes; // as they are written, prefixes and declarations of namespaces too
    std::string text;                     // what stands directly in it
    std::vector<XmlElement> children;
};

// None of what isn't well-formed, has a document type, or is nested deeper than any file of a store.
[[nodiscard]] std::optional<XmlElement> ParseXml(std::string_view bytes);

} // namespace norvctl
