#pragma once

// Why a log device refused a value: the limits of its catalogue, in words.

#include <cstdint>
#include <string>

namespace norvctl
{

// "allowed are 10 to 20 in steps of 5", "allowed are 9600, 19200"; empty when the result isn't a refusal, or
// the catalogue doesn't say more than the result does.
[[nodiscard]] std::string AllowedValues(const std::wstring& logDevice, const std::wstring& parameter,
                                        int32_t result);

} // namespace norvctl
