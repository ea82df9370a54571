#pragma once

// The values of a log device that its catalogue would refuse today.

#include "ValueCheck.h"

#include <cstdint>
#include <string>
#include <vector>

namespace norvctl
{

struct RefusedValue
{
    std::string parameter;
    std::string value;
    int32_t result; // why
};

// In the order of the file. Subdevices have no part in it: theirs take any value.
[[nodiscard]] std::vector<RefusedValue> RefusedValues(const std::string& device, const ValueCheck& check);

} // namespace norvctl
