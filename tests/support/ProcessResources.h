#pragma once

// What this process has of the system's things and of memory at one moment: counted ahead of something and
// behind it, it tells what that has left.
//
//     const ProcessResources before = CountProcessResources();
//     ...
//     EXPECT_EQ(CountProcessResources(), before);
//
// Callers must: count in a process in which nothing else is under way. What the test itself holds is counted
// too, so whatever it needs later it has to have ahead of the first count.

#include <iosfwd>

#include <array>
#include <cstddef>

namespace norvepa::test
{

struct ProcessResources
{
    // By the system's number for a kind: events, files, keys, mappings, mutexes, threads, ...
    std::array<std::size_t, 256> handles{};
    std::size_t threads = 0;
    std::size_t heaps = 0;
    std::size_t heapBlocks = 0; // in use, of all heaps
    std::size_t heapBytes = 0;  // of those blocks
    std::size_t views = 0;      // of mapped files and loaded modules: regions of the address space
    std::size_t freeTlsIndices = 0;
    std::size_t freeFlsIndices = 0;

    bool operator==(const ProcessResources& other) const = default;

    friend void PrintTo(const ProcessResources& resources, std::ostream* out);
};

// Leaves the heaps as they are. Throws when the system doesn't tell.
[[nodiscard]] ProcessResources CountProcessResources();

// The blocks of all heaps alone, with the other numbers left at 0: of a process in which something else is
// under way, for as long as that allocates nothing.
[[nodiscard]] ProcessResources CountHeapBlocks();

// Asks nothing but their number: a thread that has ended for its owner takes a moment more to go.
[[nodiscard]] std::size_t CountThreads();

// Takes all of them for a moment.
[[nodiscard]] std::size_t CountFreeTlsIndices();

} // namespace norvepa::test
