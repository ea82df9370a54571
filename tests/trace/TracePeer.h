#pragma once

// A second process that traces, under the settings of the same redirected registry. It does what it is
// asked, one thing at a time, and ends with the object.

#include "support/RedirectedRegistry.h"

#include <windows.h>

#include <string>

namespace norvepa::test
{

class TracePeer
{
public:
    explicit TracePeer(const RedirectedRegistry& registry); // throws when it can't be started
    TracePeer(const TracePeer&) = delete;
    TracePeer& operator=(const TracePeer&) = delete;
    ~TracePeer(); // lets it end by itself

    // One command, answered with one line: "init", "init-secured", "trace LEVEL TEXT", "lock", "unlock",
    // "mask", "debugger", "fail-mutex", "fail-mappings", "lose-counter-race".
    std::string Ask(const std::string& command);

    // As Ask, in two halves, for what takes its time.
    void Send(const std::string& command);
    [[nodiscard]] std::string Answer();

    // Ends it at once, with whatever it holds.
    void Kill();

private:
    HANDLE m_process = nullptr;
    HANDLE m_input = nullptr;  // what it reads
    HANDLE m_output = nullptr; // what it writes
};

} // namespace norvepa::test
