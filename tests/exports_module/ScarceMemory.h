#pragma once

// A loaded library that runs out of memory: while an object lives, its nth request to the C heap fails, on
// whichever thread it is made. The system's own libraries get what they ask for. One object at a time.

#include "support/ImportHook.h"

#include <windows.h>

#include <cstddef>

namespace norvepa::test
{

enum class Scarcity
{
    Passing, // the next request succeeds again
    Lasting, // all that follow fail too
};

class ScarceMemory
{
public:
    ScarceMemory(HMODULE library, std::size_t nth, Scarcity scarcity); // from 1 on
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;
    ~ScarceMemory() = default;

    // Whether there were as many requests.
    [[nodiscard]] bool hasFailed() const;

private:
    ImportHook m_malloc;
    ImportHook m_calloc;
    ImportHook m_realloc;
};

} // namespace norvepa::test
