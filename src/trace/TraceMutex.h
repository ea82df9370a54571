#pragma once

// The mutex that serialises the trace output of all processes. It is made on first use and stays.
//
// Callers may rely on: nothing here fails. Without the mutex, or after ten seconds of waiting for it,
// tracing goes on unguarded: lines may mix, but nothing that is traced from stops.

#include "trace/TraceStatement.h"

#include <windows.h>

namespace norvepa
{

// Makes the mutex unless it is there already. What can't be made is told to the debugger.
void MakeTraceMutex(SECURITY_ATTRIBUTES* security) noexcept;

// When the module goes: see TraceEnd.
void CloseTraceMutex() noexcept;

// TraceLock and TraceUnlock around a scope; a thread may hold it more than once.
class TraceGuard
{
public:
    TraceGuard() noexcept { TraceLock(); }
    TraceGuard(const TraceGuard&) = delete;
    TraceGuard& operator=(const TraceGuard&) = delete;
    ~TraceGuard() { TraceUnlock(); }
};

} // namespace norvepa
