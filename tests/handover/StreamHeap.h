#pragma once

// What a stream of records asks of the C heap, seen and, where a test wants it, refused. A block that grows
// always moves, and what it leaves is overwritten. Seen is one stream, made while the object lives; one
// object at a time.

#include "support/ImportHook.h"

#include <cstddef>
#include <string>
#include <vector>

namespace norvepa::test
{

class StreamHeap
{
public:
    StreamHeap();
    StreamHeap(const StreamHeap&) = delete;
    StreamHeap& operator=(const StreamHeap&) = delete;
    ~StreamHeap();

    void RefuseToBegin();
    void RefuseToGrow(std::size_t nth); // from 1 on

    // What the stream's block held ahead of each growth, from its first byte to its last.
    [[nodiscard]] const std::vector<std::string>& grownFrom() const;

    [[nodiscard]] bool isHeld() const; // whether the stream has a block now

private:
    ImportHook m_begin;
    ImportHook m_grow;
    ImportHook m_end;
};

} // namespace norvepa::test
