#pragma once

// The system's count of milliseconds (GetTickCount) stands still for this program while the object lives, and
// goes on when a test says so. It begins so late that whatever was remembered by it lies far back, and what
// is remembered meanwhile lies ahead of the system's own. One object at a time.

#include "support/ImportHook.h"

#include <windows.h>

namespace norvepa::test
{

class StoppedClock
{
public:
    StoppedClock();

    void GoOn(DWORD milliseconds) const;

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
