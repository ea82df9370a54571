#pragma once

// Where lines go. What an output has opened stays open when the settings go over to another one.
//
// Callers must: hold the trace mutex.

#include "trace/TraceSettings.h"

#include <windows.h>

#include <string_view>

namespace norvepa
{

// Makes the output of `settings` ready. What goes wrong on the way is said in a line of its own through
// the output that was in force `before`.
void PrepareTraceOutput(const TraceSettings& settings, const TraceSettings& before,
                        SECURITY_ATTRIBUTES* security) noexcept;

// Writes a line, without its ending; what the ending is depends on the output.
void WriteTraceLine(const TraceSettings& settings, std::string_view line) noexcept;

// When the module goes: see TraceEnd. Closes whatever has been opened.
void CloseTraceOutputs() noexcept;

} // namespace norvepa
