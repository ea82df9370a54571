#pragma once

// Waits that are all in vain.

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

} // namespace norvepa::test
