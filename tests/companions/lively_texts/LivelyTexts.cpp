#include <windows.h>

// Whoever loads this library as a program has this variable from then on.
BOOL WINAPI DllMain(HINSTANCE /*instance*/, DWORD /*reason*/, LPVOID /*reserved*/)
{
    SetEnvironmentVariableW(L"NORV_TEST_LIVELY", L"ran");
    return TRUE;
}
