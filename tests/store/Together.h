#pragma once

// Threads that begin at one moment, however long it takes to make them: for what has to bear being called by
// many at once.

#include "win/Handle.h"

#include <windows.h>

#include <thread>
#include <vector>

namespace norvepa::test
{

// Runs a body, a callable that is told which thread it is on, on so many threads without COM, to the end of
// all of them.
template <typename Body>
void Together(int count, const Body& body)
{
    const win::Handle start(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
    {
        threads.emplace_back([&, i] {
            WaitForSingleObject(start.get(), INFINITE);
            body(i);
        });
    }
    SetEvent(start.get());
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

} // namespace norvepa::test
