#pragma once

// What a trace statement would be as a function: its call site can't be seen from here, nor what it does.

#include "trace/TraceStatement.h"

namespace norvepa::bench
{

// Does nothing with what it is given.
void PlainCall(const TraceSource& source, std::uint32_t level, const char* sourceFile, int line,
               const char* format, const void* first, const void* second) noexcept;

} // namespace norvepa::bench
