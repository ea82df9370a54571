#pragma once

// The stream in which a driver receives its parameters: records one behind the other, without header, count
// or end. All numbers are little-endian; texts are UTF-16 without a terminator.
//
//   0      2  length of the record, these two bytes included
//   2      1  length of the name in bytes
//   3      n  name
//   3 + n  1  length of the type, always 1
//   4 + n  1  type
//   5 + n  1  length of the value in bytes
//   6 + n  m  value: a signed number of 32 bits, an unsigned 1 or 0 of 32 bits, or a text
//
// The two lengths are 8 bits wide: a text of 128 characters counts as empty, one of 130 as two characters
// long, and only what the length tells is written. Drivers read it so; it isn't to be widened.

#include "frame/Result.h"
#include "handover/DeviceOutline.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>

namespace norvepa
{

struct DriverRecord
{
    std::wstring_view name;
    DriverType type;
    std::span<const std::byte> value; // at most 255 bytes
};

// Of a longer text a record shows nothing more. In characters.
inline constexpr std::size_t LongestRecordText = 260;

// As much of a text as its length in a record tells.
[[nodiscard]] std::span<const std::byte> RecordText(std::wstring_view text) noexcept;

// The growing stream. It grows by 1000 bytes whenever a field doesn't fit.
class DriverRecords
{
public:
    DriverRecords() noexcept;

    // PGSP_OK; PGSP_ERR_DRIVER_BUFFER when there never was a buffer; PGSP_ERR_DRIVER_NO_MEMORY when it can't
    // grow, of which nothing is left then.
    [[nodiscard]] Result Write(const DriverRecord& record);

    // Of finished records.
    [[nodiscard]] std::span<const std::byte> bytes() const noexcept { return {m_buffer.get(), m_usedBytes}; }

private:
    static constexpr std::uint32_t BlockBytes = 1000;

    // Of the C heap, which can make a block longer where it stands.
    struct Free
    {
        // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
        void operator()(std::byte* block) const noexcept { std::free(block); }
    };

    [[nodiscard]] Result Put(std::span<const std::byte> field);
    [[nodiscard]] Result Grow() noexcept;

    std::unique_ptr<std::byte, Free> m_buffer;
    std::byte* m_writePosition;
    std::uint32_t m_blockCount = 1;
    std::uint32_t m_usedBytes = 0;   // by finished records
    std::uint32_t m_recordBytes = 0; // by the record that is being written
    std::uint32_t m_freeBytes = BlockBytes;
};

} // namespace norvepa
