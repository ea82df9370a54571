#pragma once

// The machine's event log, where faults of the trace engine are told.

#include <cstdint>

namespace norvepa
{

enum class TraceFault : std::uint32_t
{
    EngineNotFound = 0xC0001400, // with the library's path
    ExportMissing = 0xC0001401,  // with the export's name
    CallFailed = 0x80001402      // with the export's name and the line
};

// All are logged as errors. A log that can't be reached stays without the entry.
void LogTraceFault(TraceFault fault, const char* what) noexcept;
void LogTraceFault(TraceFault fault, const char* what, const char* line) noexcept;

} // namespace norvepa
