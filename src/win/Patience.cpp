#include "win/Patience.h"

#include <windows.h>

#include <array>
#include <atomic>

namespace norvepa::win
{

namespace
{

// A pause of the system's takes 1 ms, or up to 16 ms: none begins when that would be too late.
constexpr unsigned PausesToALongOne = 16;
constexpr std::chrono::milliseconds LastLongPause{4};

constexpr DWORD Remembered = 1'000; // ms

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
    Pair known = held;
    place.compare_exchange_strong(known, {file, now}); // unless it has just been opened
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

const Patience::Limit Patience::Long{std::chrono::milliseconds(20), 100};
const Patience::Limit Patience::Short{std::chrono::milliseconds(1), 5};

bool Patience::IsWorthAnotherTry() noexcept
{
    return IsWithin(Long);
}

bool Patience::IsWithin(const Limit& limit) noexcept
{
    const auto now = std::chrono::steady_clock::now();
    if (!m_begin)
    {
        m_begin = now;
    }
    const auto waited = now - *m_begin;
    if (waited >= limit.time && m_pauses >= limit.fewestTries)
    {
        return false;
    }
    const bool isLong = ++m_pauses % PausesToALongOne == 0 && waited < LastLongPause;
    Sleep(isLong ? 1 : 0);
    return true;
}

void Patience::Opened() const noexcept
{
    AtomicPair& place = heldFiles[m_file / 2 % Places];
    if (Pair held = place.load(); held.what == m_file)
    {
        place.compare_exchange_strong(held, Pair{});
    }
}

bool ReadersPatience::IsWorthAnotherTry() noexcept
{
    const DWORD now = GetTickCount();
    if (m_limit == nullptr)
    {
        m_limit = IsHeldForLong(file(), now) || AreTooManyInVain(now) ? &Short : &Long;
    }
    const bool isWorthIt = IsWithin(*m_limit);
    if (!isWorthIt && m_limit == &Long)
    {
        HasWaitedInVain(file(), now);
    }
    return isWorthIt;
}

} // namespace norvepa::win
