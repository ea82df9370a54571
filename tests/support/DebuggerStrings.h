#pragma once

// What this process says to a debugger by OutputDebugStringA, heard for as long as the object lives.
// One at a time, on one thread.

#include <string>
#include <vector>

namespace norvepa::test
{

class DebuggerStrings
{
public:
    DebuggerStrings();
    DebuggerStrings(const DebuggerStrings&) = delete;
    DebuggerStrings& operator=(const DebuggerStrings&) = delete;
    ~DebuggerStrings();

    [[nodiscard]] const std::vector<std::string>& heard() const;

private:
    void* m_handler;
};

} // namespace norvepa::test
