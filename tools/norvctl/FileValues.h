#pragma once

// A file of the store, read as it stands: which values it holds, and where in it. The exports answer a value
// without its section, and nothing at all of files that others write; so these are read by their paths.

#include "Reads.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

// Values that stand together, in the order of the file; a name may come several times.
struct ValueGroup
{
    std::string name;
    std::vector<NameAndValue> values;
};

struct FileValues
{
    std::vector<NameAndValue> attributes; // of the root element, without namespaces
    std::vector<ValueGroup> sections;     // each name once; "" for what stands directly in the root
    std::vector<ValueGroup> subdevices;   // by their names
    std::vector<ValueGroup> links;        // by their sections; a value is "library,number" or "library,page"
    std::uint64_t fingerprint = 0;        // of all that the file says, not of how it is laid out
};

// None of what isn't well-formed.
[[nodiscard]] std::optional<FileValues> ParseFileValues(std::string_view bytes);

// Throws when it isn't there or can't be read. Not of a subdevice.
[[nodiscard]] FileValues ReadDeviceFile(const std::string& device);

} // namespace norvctl
