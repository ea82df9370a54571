#pragma once

// The trace client: one text line per event, to the output that the registry names.
//
// Callers may rely on: nothing here fails or throws, and nothing is ever torn down; mutex, mappings
// and the trace engine library stay until the process ends. Several processes may trace at once.

#include <windows.h>

namespace norvepa
{

// Remembers the module's name and reads the settings. `security` guards the trace mutex and the
// shared ring; the attributes are copied, the descriptor they point to must stay. Called once, when the
// module is loaded.
void TraceInit(SECURITY_ATTRIBUTES* security, const char* moduleName) noexcept;

} // namespace norvepa
