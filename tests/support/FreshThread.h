#pragma once

// Threads as the library meets them in other makers' programs: without COM until somebody initialises it.

#include <thread>

namespace norvepa::test
{

// Runs a body, a callable without arguments, on a thread of its own, to its end.
template <typename Body>
void OnFreshThread(const Body& body)
{
    std::thread(body).join();
}

// Whether COM is initialised on this thread.
[[nodiscard]] bool ThisThreadHasCom();

} // namespace norvepa::test
