#pragma once

// A program from beside the test program, run as a user runs it: with arguments, watched by what it prints
// and how it ends. It has no input, and is ended with the object when it hasn't ended by itself.

#include "support/TemporaryFolder.h"

#include <windows.h>

#include <string>
#include <vector>

namespace norvepa::test
{

// Line ends are line feeds, whatever the program wrote; `rawOutput` is the output with those that it wrote.
struct ProgramEnd
{
    DWORD exitCode;
    std::string output;
    std::string error;
    std::string rawOutput;
};

class ChildProgram
{
public:
    // Throws when it can't be started. The arguments arrive as they are, blanks and quotes included.
    ChildProgram(const std::wstring& program, const std::vector<std::wstring>& arguments);
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;
    ~ChildProgram();

    [[nodiscard]] DWORD id() const { return m_id; }

    // The next line of its output, as soon as it is there. Throws when the output has ended.
    [[nodiscard]] std::string ReadLine();

    // Waits until it has ended by itself; the output is what ReadLine hasn't taken. Throws when it doesn't
    // end.
    [[nodiscard]] ProgramEnd Finish();

private:
    TemporaryFolder m_folder; // what it writes to standard error lies there
    DWORD m_id = 0;
    HANDLE m_process = nullptr;
    HANDLE m_output = nullptr;
};

} // namespace norvepa::test
