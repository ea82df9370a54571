#pragma once

// How whoever replaces a thing of the whole process learns that nobody reads the old one any more.
//
// A reader leaves a mark in its thread's slot ahead of its look at what is published, and takes it away when
// it has read. Whoever has replaced a thing asks all slots. A slot that is then seen without marks has lost
// every mark that was made ahead of the replacement, and a mark that is made later finds the successor. So
// once each slot has been seen without marks, at whatever moments behind the replacement, the old thing is
// nobody's. The mark, the look, the replacement and the question are sequentially consistent: with less, a
// reader could find the old thing behind a mark that isn't seen yet.
//
// Callers may rely on: neither side waits or asks for memory, and threads that read at once hardly ever write
// to a cache line in common. Callers must not: keep a mark for longer than a query; nothing that is replaced
// while it stands is freed ahead of it, whoever reads what. A thread that is terminated while it reads costs
// the memory of all that is replaced from then on.

#include <atomic>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace norvepa::win
{

// More than threads that read at once. Those that share a slot answer as right, but slower.
inline constexpr std::size_t ReaderSlots = 64;

struct alignas(64) ReaderSlot // a cache line of its own
{
    std::atomic<std::uint32_t> marks = 0;
};

struct TakeMarkAway
{
    void operator()(ReaderSlot* slot) const noexcept { slot->marks.fetch_sub(1); }
};

// A mark. It knows its slot, so that any thread may let go of it.
using Reading = std::unique_ptr<ReaderSlot, TakeMarkAway>;

// Marks in the slot of the calling thread.
[[nodiscard]] Reading BeginReading() noexcept;

using SlotSet = std::bitset<ReaderSlots>;

// The slots with marks. Each is asked once, one after the other.
[[nodiscard]] SlotSet MarkedSlots() noexcept;

} // namespace norvepa::win
