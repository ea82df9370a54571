#pragma once

// Memory that runs out: while an object lives, the nth allocation by operator new fails, on whichever thread
// it is made. One object at a time.

#include <cstddef>

namespace norvepa::test
{

enum class Shortage
{
    Passing, // the next allocation succeeds again
    Lasting, // all that follow fail too
};

class FailingNew
{
public:
    FailingNew(std::size_t nth, Shortage shortage); // from 1 on
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;
    ~FailingNew();

    // Whether there were as many allocations.
    [[nodiscard]] bool hasFailed() const;
};

} // namespace norvepa::test
