#pragma once

// The limits that the catalogue sets to a whole number.

#include <cstdint>
#include <string>

namespace norvctl
{

// What the catalogue says; what it doesn't say is empty.
struct ValueLimits
{
    std::wstring min, max, step, base, standard;
};

// PGSP_OK, or the code with which LogDeviceSetValueBL would refuse the value, or what the words min, max and
// default stand for.
[[nodiscard]] int32_t CheckInteger(const ValueLimits& limits, const std::wstring& given);

// Whether both count as the same number. A text that isn't one as a whole is the same as itself only.
[[nodiscard]] bool IsSameInteger(const ValueLimits& limits, const std::wstring& left,
                                 const std::wstring& right);

// "10 to 30000 in steps of 10".
[[nodiscard]] std::string AsRange(const ValueLimits& limits);

} // namespace norvctl
