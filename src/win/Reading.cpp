#include "win/Reading.h"

#include <windows.h>

#include <array>

namespace norvepa::win
{

namespace
{

constexpr DWORD ThreadIdStep = 4; // between the ids of two threads

// Never destroyed: what is borrowed at the end of the process is still given back.
constinit std::array<ReaderSlot, ReaderSlots> slots;

} // namespace

Reading BeginReading() noexcept
{
    ReaderSlot& slot = slots[GetCurrentThreadId() / ThreadIdStep % ReaderSlots];
    slot.marks.fetch_add(1);
    return Reading(&slot);
}

SlotSet MarkedSlots() noexcept
{
    SlotSet marked;
    for (std::size_t slot = 0; slot < ReaderSlots; ++slot)
    {
        marked[slot] = slots[slot].marks.load() != 0;
    }
    return marked;
}

} // namespace norvepa::win
