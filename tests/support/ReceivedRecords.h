#pragma once

// The records that a driver receives, taken apart strictly: every length has to agree with the others, and a
// byte that is left over is an error.

#include <iosfwd>

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace norvepa::test
{

struct ReceivedRecord
{
    std::wstring name;
    std::variant<std::uint32_t, std::int32_t, std::wstring> value; // in the order of the types' numbers

    friend bool operator==(const ReceivedRecord&, const ReceivedRecord&) = default;
};

using ReceivedRecords = std::vector<ReceivedRecord>;

// What a read hands out, with marks in it that a failure has to leave alone.
struct HandedOut
{
    std::uint8_t mark = 0;
    std::uint8_t* block = &mark;
    std::uint32_t length = 77;

    [[nodiscard]] bool isUntouched() const { return block == &mark && length == 77; }
};

// Records as they are expected.
[[nodiscard]] ReceivedRecord BoolRecord(std::wstring name, std::uint32_t value);
[[nodiscard]] ReceivedRecord IntRecord(std::wstring name, std::int32_t value);
[[nodiscard]] ReceivedRecord TextRecord(std::wstring name, std::wstring value);

// Throws for a stream that isn't one of whole and sound records.
[[nodiscard]] ReceivedRecords TakeApart(std::span<const std::uint8_t> stream);

// The same of a block that a read has handed out, which is given back. Throws also for a block of another
// size, and for one that the system doesn't take.
[[nodiscard]] ReceivedRecords TakeOver(std::uint8_t* block, std::uint32_t length);

std::ostream& operator<<(std::ostream& stream, const ReceivedRecord& record);

} // namespace norvepa::test
