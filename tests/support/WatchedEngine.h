#pragma once

// The real DOM engine, watched: how many of its objects are held at once, and how a caller fares when it runs
// out of memory. Seen are the calls that the program itself makes, to documents that it asks for while an
// object lives and to all that they hand out; with a method that the library hasn't called so far, the list
// in the source grows. One object at a time, on one thread.

#include "support/ImportHook.h"

#include <windows.h>

#include <cstddef>
#include <gtest/gtest.h>
#include <new>
#include <string>

namespace norvepa::test
{

class WatchedEngine
{
public:
    WatchedEngine();
    WatchedEngine(const WatchedEngine&) = delete;
    WatchedEngine& operator=(const WatchedEngine&) = delete;
    ~WatchedEngine();

    // The nth call from now on isn't carried out and answers this; where an error is asked for its code, that
    // is the code.
    void FailAtCall(std::size_t nth, HRESULT answer = E_OUTOFMEMORY); // from 1 on
    [[nodiscard]] bool hasFailed() const;

    [[nodiscard]] std::size_t mostObjectsHeld() const;

private:
    ImportHook m_creation;
};

// Runs `operation` again and again, with the engine's first call lacking memory, then the second and so on,
// until there is none left. Each time `prepare` is called before and `look` after, with whether there was a
// call to fail. An operation for which that has no consequence fails the test.
template <typename Prepare, typename Operation, typename Look>
void WithEachEngineCallFailing(const Prepare& prepare, const Operation& operation, const Look& look)
{
    bool hasFailed = true;
    for (std::size_t nth = 1; hasFailed; ++nth)
    {
        SCOPED_TRACE("engine's call " + std::to_string(nth));
        prepare();
        bool threw = false;
        {
            WatchedEngine engine;
            engine.FailAtCall(nth);
            try
            {
                operation();
            }
            catch (const std::bad_alloc&)
            {
                threw = true;
            }
            hasFailed = engine.hasFailed();
        }
        EXPECT_EQ(threw, hasFailed);
        look(hasFailed);
    }
}

} // namespace norvepa::test
