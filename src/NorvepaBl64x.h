#pragma once

// The module as the system loads and unloads it.

namespace norvepa
{

// One global instance exists. Its two operations run under the loader's lock: neither starts a thread or
// waits for one to end, and whatever goes wrong in the first is told to the debugger and doesn't stop the
// load.
class CNorvepaBl64xApp
{
public:
    // COM for the loading thread, a security descriptor for authenticated users, the trace settings.
    int InitInstance() noexcept; // 1

    // What InitInstance began, ended; not called when the whole process ends.
    int ExitInstance() noexcept; // 1
};

} // namespace norvepa
