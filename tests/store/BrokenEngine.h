#pragma once

// A system whose XML engine can't be had: from a given object on, each one asked for is refused with the next
// of the results, the last of them again and again. One at a time.

#include "support/ImportHook.h"

#include <windows.h>

#include <vector>

namespace norvepa::test
{

class BrokenEngine
{
public:
    explicit BrokenEngine(std::vector<HRESULT> refusals, int objectsBefore = 0);
    BrokenEngine(const BrokenEngine&) = delete;
    BrokenEngine& operator=(const BrokenEngine&) = delete;

    [[nodiscard]] int asked() const; // how many objects

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
