#include "win/Patience.h"

#include <windows.h>

#include <array>
#include <atomic>

namespace norvepa::win
{

namespace
{

constexpr std::chrono::milliseconds LongestWait{20};
constexpr unsigned FewestTries = 100;
constexpr unsigned PausesToALongOne = 16; // the system's take 1 ms, or up to 16 ms
constexpr DWORD Remembered = 1'000;       // ms

constexpr std::uint32_t WaitsInVain = 5; // of the process, within the time that they are remembered

// Two numbers that change as one.
struct Pair
{
    std::uint32_t what = 0;
    DWORD when = 0;
};
using AtomicPair = std::atomic<Pair>;
static_assert(AtomicPair::is_always_lock_free);

// Each file has the place that its number gives it. One that takes another's place is waited for once more.
constexpr std::size_t Places = 64;
constinit std::array<AtomicPair, Places> heldFiles{}; // what was waited for in vain, and looked at when
constinit AtomicPair waitsInVain{};                   // how many, since when

bool IsLately(DWORD when, DWORD now) noexcept
{
    return now - when < Remembered;
}

// Which a look at the file makes last longer.
bool IsHeldForLong(FileNumber file, DWORD now) noexcept
{
    AtomicPair& place = heldFiles[file / 2 % Places];
    const Pair held = place.load();
    if (held.what != file || !IsLately(held.when, now))
    {
        return false;
    }
    place.store({file, now});
    return true;
}

bool AreTooManyInVain(DWORD now) noexcept
{
    const Pair waits = waitsInVain.load();
    return waits.what >= WaitsInVain && IsLately(waits.when, now);
}

void HasWaitedInVain(FileNumber file, DWORD now) noexcept
{
    heldFiles[file / 2 % Places].store({file, now});
    Pair waits = waitsInVain.load();
    Pair more;
    do
    {
        more = IsLately(waits.when, now) ? Pair{waits.what + 1, waits.when} : Pair{1, now};
    } while (!waitsInVain.compare_exchange_weak(waits, more));
}

} // namespace

bool Patience::IsWorthAnotherTry() noexcept
{
    const auto now = std::chrono::steady_clock::now();
    if (!m_begin)
    {
        m_begin = now;
    }
    if (now - *m_begin >= LongestWait && m_pauses >= FewestTries)
    {
        return false;
    }
    Sleep(++m_pauses % PausesToALongOne == 0 ? 1 : 0);
    return true;
}

bool ReadersPatience::IsWorthAnotherTry() noexcept
{
    const DWORD now = GetTickCount();
    if (!m_hasWaited && (IsHeldForLong(m_file, now) || AreTooManyInVain(now)))
    {
        return false;
    }
    m_hasWaited = true;
    if (m_wait.IsWorthAnotherTry())
    {
        return true;
    }
    HasWaitedInVain(m_file, now);
    return false;
}

void ReadersPatience::Opened() noexcept
{
    AtomicPair& place = heldFiles[m_file / 2 % Places];
    if (Pair held = place.load(); held.what == m_file)
    {
        place.compare_exchange_strong(held, Pair{});
    }
}

} // namespace norvepa::win
