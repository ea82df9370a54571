#pragma once

// Whether the library is in this process: a worker may keep it longer than whoever has loaded it.

#include "support/Eventually.h"

#include <windows.h>

namespace norvepa::test
{

[[nodiscard]] inline bool IsLibraryLoaded()
{
    return GetModuleHandleW(L"NorvepaBl64x.dll") != nullptr;
}

// False when that takes more than a minute.
[[nodiscard]] inline bool AwaitLibraryGone()
{
    return Eventually([] { return !IsLibraryLoaded(); });
}

} // namespace norvepa::test
