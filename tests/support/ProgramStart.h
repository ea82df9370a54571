#pragma once

// The start of a program from beside the test program.

#include <windows.h>

#include <string>

namespace norvepa::test
{

[[nodiscard]] std::wstring BesideThisProgram(const std::wstring& program);

struct StartedProgram
{
    HANDLE process; // the caller's, to be closed
    DWORD id;
};

// Inherits what is inheritable. Throws when the program can't be started; one that the system loses in its
// start, as Wine now and then does, is started once more, with a word on standard error.
[[nodiscard]] StartedProgram StartProgram(const std::wstring& commandLine, HANDLE input, HANDLE output,
                                          HANDLE error);

} // namespace norvepa::test
