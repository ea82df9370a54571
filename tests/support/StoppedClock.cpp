#include "support/StoppedClock.h"

#include <atomic>

namespace norvepa::test
{

namespace
{

constexpr DWORD Day = 24 * 60 * 60 * 1'000; // ms
constexpr DWORD BetweenClocks = 10'000;     // ms, longer than anything is remembered

std::atomic<DWORD> now; // of this program, in ms

DWORD WINAPI Now()
{
    return now;
}

} // namespace

StoppedClock::StoppedClock() : m_hook("GetTickCount", Now)
{
    static DWORD later = Day;
    later += BetweenClocks;
    now = static_cast<DWORD>(GetTickCount64()) + later;
}

void StoppedClock::GoOn(DWORD milliseconds) const
{
    now += milliseconds;
}

} // namespace norvepa::test
