#pragma once

// For what another process or the system does in its own time: asks until the answer is yes.

#include <windows.h>

namespace norvepa::test
{

// False when that takes more than a minute.
template <typename Condition>
[[nodiscard]] bool Eventually(const Condition& condition)
{
    constexpr ULONGLONG patience = 60'000; // milliseconds
    const ULONGLONG begin = GetTickCount64();
    while (!condition())
    {
        if (GetTickCount64() - begin > patience)
        {
            return false;
        }
        Sleep(1);
    }
    return true;
}

} // namespace norvepa::test
