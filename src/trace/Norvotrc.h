#pragma once

// The trace client: one text line per event, to the output that the registry names.
//
// Callers may rely on: nothing here fails or throws, and nothing is torn down while the module is in the
// process: mutex, mappings and the trace engine library stay, whatever the settings turn to. Several
// processes may trace at once.

#include <windows.h>

namespace norvepa
{

// Remembers the module's name and reads the settings. `security` guards the trace mutex and the
// shared ring; the attributes are copied, the descriptor they point to must stay. Called once, when the
// module is loaded.
void TraceInit(SECURITY_ATTRIBUTES* security, const char* moduleName) noexcept;

// Gives back every handle, view and library, and switches all statements off. Called once, when the module is
// unloaded from a process that goes on, and all other threads are out of it.
void TraceEnd() noexcept;

} // namespace norvepa
