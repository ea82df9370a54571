#pragma once

// What a driver receives of a log device, decoded. Nothing is guessed: a block whose lengths don't add up is
// refused as a whole.

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace norvctl
{

using DriverValue =
    std::variant<bool, std::int32_t, std::wstring>; // in the order of the records' type numbers

struct DriverRecord
{
    std::wstring name;
    DriverValue value;

    bool operator==(const DriverRecord&) const = default;
};

// Throws with what was asked for, and with which record is damaged how.
[[nodiscard]] std::vector<DriverRecord> DecodeDriverRecords(const std::string& subject,
                                                            std::span<const std::uint8_t> block);

// boolean, integer, string
[[nodiscard]] const char* TypeWord(const DriverValue& value);

} // namespace norvctl
