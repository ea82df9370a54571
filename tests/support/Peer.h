#pragma once

// A second process: a program from beside the test program, under the same redirected registry. It does what
// it is asked, one line at a time, and ends with the object.

#include "support/RedirectedRegistry.h"

#include <windows.h>

#include <string>

namespace norvepa::test
{

class Peer
{
public:
    Peer(const std::wstring& program, const RedirectedRegistry& registry); // throws when it can't be started
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer(); // lets it end by itself

    // One command, answered with one line, both in UTF-8.
    std::string Ask(const std::string& command);

    // As Ask, in two halves, for what takes its time.
    void Send(const std::string& command);
    [[nodiscard]] std::string Answer();

    // Waits until it has ended by itself; its exit code. Throws when it doesn't end.
    [[nodiscard]] DWORD ExitCode();

    // Ends it at once, with whatever it holds.
    void Kill();

private:
    HANDLE m_process = nullptr;
    HANDLE m_input = nullptr;  // what it reads
    HANDLE m_output = nullptr; // what it writes
};

} // namespace norvepa::test
