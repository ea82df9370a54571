#pragma once

// A function of the system's, for what stands in its place (see ImportHook.h): its name leads back there.

#include <windows.h>

namespace norvepa::test
{

template <typename Function>
[[nodiscard]] Function* SystemFunction(const char* name, const wchar_t* library = L"kernel32.dll")
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), name)));
}

} // namespace norvepa::test
