#pragma once

// One event as text: its fields, each within its width, and the line that a format makes of them.
//
// Callers must: fill every pointer of an event.

#include "trace/FixedText.h"
#include "trace/TraceSettings.h"

#include <cstdint>
#include <optional>

namespace norvepa
{

inline constexpr std::string_view TraceProgramId = "NvEPBL64";

struct TraceEvent
{
    const char* tag;
    std::uint32_t level;
    const char* component;
    std::uint32_t status;
    std::uint32_t extra;
    const char* sourceFile; // a path; its file part counts
    int line;
    const char* text;
};

// Fields are cut where they are too wide; only program id and component have blanks added.
struct TraceRecord
{
    FixedText<1> formatLetter;
    FixedText<8> programId;
    FixedText<3> component;
    FixedText<2> levelCode;
    FixedText<12> status;
    FixedText<12> extra;
    FixedText<64> time; // empty in the formats that show none
    FixedText<12> sourceFile;
    FixedText<5> line;
    FixedText<64> tag;
    FixedText<256> message;
    std::uint32_t processId = 0;
    std::uint32_t threadId = 0;
};

inline constexpr std::size_t TraceLineLimit = 418;
using TraceLine = FixedText<TraceLineLimit>;

[[nodiscard]] TraceRecord MakeTraceRecord(const TraceEvent& event, const TraceSettings& settings) noexcept;

// Nothing when the line would be longer than a line may be.
[[nodiscard]] std::optional<TraceLine> MakeTraceLine(const TraceRecord& record, LineFormat format) noexcept;

} // namespace norvepa
