#pragma once

// The ring of lines in memory that all processes share, and a viewer reads.
//
// Callers may rely on: whatever another process writes into the header, nothing outside of the mapping
// is touched. A write position beyond the ring counts as 0, the size is looked at when attaching only,
// and a line longer than the whole ring is cut to it.
// Callers must: hold the trace mutex.

#include "win/Handle.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace norvepa
{

struct RingHeader
{
    std::uint32_t writePosition; // an offset into the data
    std::uint32_t ringBytes;     // of data
    std::uint32_t wraps;         // stops at all bits set
    std::uint32_t enabled;       // the lowest byte counts
    std::uint32_t writers;       // that have ever attached
    std::uint32_t version;
    std::byte unused[44];
};
static_assert(sizeof(RingHeader) == 68);
static_assert(offsetof(RingHeader, writePosition) == 0);
static_assert(offsetof(RingHeader, ringBytes) == 4);
static_assert(offsetof(RingHeader, wraps) == 8);
static_assert(offsetof(RingHeader, enabled) == 12);
static_assert(offsetof(RingHeader, writers) == 16);
static_assert(offsetof(RingHeader, version) == 20);
static_assert(offsetof(RingHeader, unused) == 24);

inline constexpr std::size_t RingDataOffset = 64; // the data begins within the header's unused end

class TraceRing
{
public:
    // Makes the ring, or joins the one that is there, whose size then wins. Nothing when there can't be
    // one, or when the one that is there has another version.
    [[nodiscard]] static std::optional<TraceRing> Attach(std::uint32_t ringBytes,
                                                         SECURITY_ATTRIBUTES* security) noexcept;

    void Write(std::string_view line) noexcept;

private:
    TraceRing(win::Handle mapping, win::MappedView view) noexcept;

    [[nodiscard]] bool Join() noexcept;
    void FillHeader(std::uint32_t ringBytes) noexcept;
    void Put(std::string_view bytes) noexcept;

    win::Handle m_mapping; // the name goes with the last handle
    win::MappedView m_view;
    RingHeader* m_header;
    char* m_data;
    std::uint32_t m_ringBytes = 0;
};

} // namespace norvepa
