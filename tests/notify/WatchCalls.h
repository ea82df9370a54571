#pragma once

// What this program asks the system for while the object lives: the folder watches it opens and closes, the
// waits for them, and the scans of folders. All is really done. One at a time.

#include "support/ImportHook.h"

#include <windows.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace norvepa::test
{

struct OpenedWatch
{
    std::wstring folder;
    BOOL subtree;
    DWORD filter;
    HANDLE handle; // INVALID_HANDLE_VALUE when it was refused
};

class WatchCalls
{
public:
    WatchCalls();
    WatchCalls(const WatchCalls&) = delete;
    WatchCalls& operator=(const WatchCalls&) = delete;
    ~WatchCalls() = default;

    [[nodiscard]] std::vector<OpenedWatch> opened() const;
    [[nodiscard]] std::vector<HANDLE> closed() const;
    [[nodiscard]] std::size_t waits() const; // for two handles, as a poll does
    [[nodiscard]] std::vector<DWORD> timeouts() const;
    [[nodiscard]] std::size_t scans(const std::wstring& folder) const; // for files with the extension

    // Until a change that a watch has been told of waits to be polled. Takes the last two watches opened: 0
    // is that of the log devices, 1 that of the log names.
    [[nodiscard]] bool AwaitChange(std::size_t which) const;
    [[nodiscard]] bool HasChange(std::size_t which) const;

private:
    [[nodiscard]] HANDLE Current(std::size_t which) const;

    std::array<ImportHook, 4> m_hooks;
};

} // namespace norvepa::test
