#include "Interruption.h"

#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr DWORD TimeToEnd = 4000; // milliseconds; the system itself grants five to a window that is closed

// The handler is called on a thread of the system's: what it uses outlives all objects.
HANDLE asked = nullptr;
HANDLE ended = nullptr;

BOOL WINAPI Ask(DWORD signal)
{
    SetEvent(asked);
    const bool endsAnyway = signal != CTRL_C_EVENT && signal != CTRL_BREAK_EVENT;
    if (endsAnyway)
    {
        WaitForSingleObject(ended, TimeToEnd); // the system ends the process as soon as this returns
    }
    return TRUE;
}

} // namespace

Interruption::Interruption()
{
    asked = asked != nullptr ? asked : CreateEventW(nullptr, TRUE, FALSE, nullptr);
    ended = ended != nullptr ? ended : CreateEventW(nullptr, TRUE, FALSE, nullptr);
    if (asked == nullptr || ended == nullptr || SetConsoleCtrlHandler(&Ask, TRUE) == FALSE)
    {
        throw std::runtime_error("norvctl couldn't make itself ready to be interrupted");
    }
}

Interruption::~Interruption()
{
    SetConsoleCtrlHandler(&Ask, FALSE);
    SetEvent(ended);
}

bool Interruption::HasCome() const
{
    return WaitForSingleObject(asked, 0) == WAIT_OBJECT_0;
}

HANDLE Interruption::event() const
{
    return asked;
}

void Interruption::Require() const
{
    if (HasCome())
    {
        throw std::runtime_error("interrupted: nothing has been changed");
    }
}

} // namespace norvctl
