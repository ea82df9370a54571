#pragma once

// Waits that are all in vain.

#include "support/ImportHook.h"

#include <windows.h>

#include <chrono>

namespace norvepa::test
{

// How a wait goes whose file stays in use: the tries behind the first.
template <typename Patient>
int TriesInVain(Patient& patience)
{
    int tries = 0;
    while (patience.IsWorthAnotherTry())
    {
        ++tries;
    }
    return tries;
}

inline std::chrono::steady_clock::duration Since(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::steady_clock::now() - begin;
}

// All pauses take a quarter of a millisecond while the object lives: a wait is as many tries then as are the
// fewest, whose pauses take its whole time. One object at a time, and one thread.
class EqualPauses
{
public:
    static constexpr int Whole = 100; // of a wait
    static constexpr int Short = 5;

    EqualPauses() { pauses = 0; }

    [[nodiscard]] int count() const { return pauses; }

private:
    static void WINAPI Pause(DWORD /*milliseconds*/)
    {
        ++pauses;
        const auto begin = std::chrono::steady_clock::now();
        while (Since(begin) < std::chrono::microseconds(250))
        {
        }
    }

    inline static int pauses = 0;
    ImportHook m_hook{"Sleep", Pause};
};

} // namespace norvepa::test
