#pragma once

// What this program has the system do to the content of files while the object lives, in its order; and a
// system that does less than that. For one thread, and one object at a time.

#include "support/ImportHook.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace norvepa::test
{

class FileCalls
{
public:
    FileCalls();
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;
    ~FileCalls();

    // "write 5", with the bytes that were to be written, "cut 4", with the end that was to be set, "flush",
    // and "move", to another name.
    std::vector<std::string> told;

    std::optional<DWORD> roomForNextWrite; // in bytes; what has none isn't written, and the call succeeds
    bool nextWriteFails = false;
    bool cutsFail = false;
    std::function<void()> beforeWrite = [] {};
    std::function<void()> beforeCut = [] {};
    std::function<void(HANDLE file)> beforeFlush = [](HANDLE /*file*/) {};
    std::function<void()> beforeMove = [] {};

private:
    ImportHook m_write;
    ImportHook m_change;
    ImportHook m_flush;
};

} // namespace norvepa::test
