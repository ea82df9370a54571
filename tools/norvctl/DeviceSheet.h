#pragma once

// A log device's values by the sections of its file, and what the catalogue allows each of them.

#include "CatalogueLimits.h"
#include "FileOutline.h"

#include <optional>
#include <string>
#include <vector>

namespace norvctl
{

struct SheetValue
{
    std::string name;
    std::string value;
    std::string allowed;                 // "10 to 30000 in steps of 10"; empty when anything goes
    std::optional<std::string> standard; // the default, if there is one
    bool differs = false;                // from the default, by what the library's checks would tell apart
};

// In the order of the file.
struct SheetSection
{
    std::string name;
    std::vector<SheetValue> values;
};

// The values alone, without a look at the catalogue: each that is enumerated, and once. First the attributes
// of the root, below its name; then the sections; then the subdevices as "subdevices\NAME", each of which is
// also a device of its own, DEVICE\subdevices\NAME. A file whose sections can't be told has one section,
// without a name. Throws when there is no such device.
[[nodiscard]] std::vector<SheetSection> SectionsOfDevice(const std::string& device);

// The same of a template.
[[nodiscard]] std::vector<SheetSection> SectionsOfTemplate(const std::string& name);

// Adds what the catalogue says. One object for many devices has it read once for those that are alike.
void AddLimits(const std::string& device, CatalogueLimits& limits, std::vector<SheetSection>& sections);

} // namespace norvctl
