#include "support/AtNextPause.h"

#include <windows.h>

#include <utility>

namespace norvepa::test
{

namespace
{

std::function<void()> nextDeed;

void WINAPI Pause(DWORD milliseconds)
{
    if (const auto deed = std::exchange(nextDeed, nullptr))
    {
        deed();
        return;
    }
    SleepEx(milliseconds, FALSE);
}

} // namespace

AtNextPause::AtNextPause(std::function<void()> deed) : m_hook("Sleep", Pause)
{
    nextDeed = std::move(deed);
}

AtNextPause::~AtNextPause()
{
    nextDeed = nullptr;
}

bool AtNextPause::hasBeen() const
{
    return !nextDeed;
}

} // namespace norvepa::test
