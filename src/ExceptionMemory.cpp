#include "ExceptionMemory.h"

#include <cstddef> // tells which run-time library this is

#ifndef __GLIBCXX__

void norvepa::MakeExceptionMemory() noexcept {}
void norvepa::FreeExceptionMemory() noexcept {}

#else

#include <windows.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <exception>
#include <memory>
#include <utility>

// The names are those of the C++ ABI, and what owns exceptions can't throw them.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cppcoreguidelines-no-malloc)

namespace __cxxabiv1
{

struct __cxa_eh_globals
{
    void* caughtExceptions;
    unsigned int uncaughtExceptions;
};

} // namespace __cxxabiv1

namespace norvepa
{

namespace
{

using ThreadState = __cxxabiv1::__cxa_eh_globals;

// What the run-time library has ahead of an exception: 160 bytes in its present form, counted backwards.
constexpr std::size_t HeaderBytes = 256;

constexpr std::size_t Reserves = 64;

struct alignas(std::max_align_t) Reserve
{
    std::array<std::byte, 2 * HeaderBytes> bytes;
    std::atomic<bool> isTaken;
};

struct SpareState
{
    std::atomic<DWORD> thread; // 0 is none's
    ThreadState state;
};

constinit std::array<Reserve, Reserves> reserves{};
constinit std::array<SpareState, Reserves> spareStates{};
constinit DWORD stateIndex = FLS_OUT_OF_INDEXES; // of fibre-local storage, which frees what a thread leaves

void* TakeReserve(std::size_t bytes) noexcept
{
    if (bytes > sizeof(Reserve::bytes))
    {
        return nullptr;
    }
    const auto free = std::find_if(reserves.begin(), reserves.end(),
                                   [](Reserve& reserve) { return !reserve.isTaken.exchange(true); });
    return free == reserves.end() ? nullptr : free->bytes.data();
}

// False for a block of the heap's.
bool PutBackReserve(const void* block) noexcept
{
    const auto taken = std::find_if(reserves.begin(), reserves.end(),
                                    [=](Reserve& reserve) { return reserve.bytes.data() == block; });
    if (taken == reserves.end())
    {
        return false;
    }
    taken->isTaken = false;
    return true;
}

void WINAPI FreeState(void* state) noexcept
{
    std::free(state);
}

ThreadState* MakeState() noexcept
{
    std::unique_ptr<void, decltype(&FreeState)> memory(std::malloc(sizeof(ThreadState)), &FreeState);
    if (memory == nullptr ||
        FlsSetValue(stateIndex, std::construct_at(static_cast<ThreadState*>(memory.get()))) == 0)
    {
        return nullptr;
    }
    return static_cast<ThreadState*>(memory.release());
}

// A thread that was given one keeps it: an exception may be in flight. Whoever has its number next takes it
// over.
ThreadState* FindSpareState(DWORD thread) noexcept
{
    const auto own = std::find_if(spareStates.begin(), spareStates.end(),
                                  [=](const SpareState& spare) { return spare.thread == thread; });
    return own == spareStates.end() ? nullptr : &own->state;
}

ThreadState* TakeSpareState(DWORD thread) noexcept
{
    const auto taken = std::find_if(spareStates.begin(), spareStates.end(), [=](SpareState& spare) {
        DWORD nobody = 0;
        return spare.thread.compare_exchange_strong(nobody, thread);
    });
    return taken == spareStates.end() ? nullptr : &taken->state;
}

ThreadState* StateOfThisThread() noexcept
{
    if (void* const known = FlsGetValue(stateIndex))
    {
        return static_cast<ThreadState*>(known);
    }
    const DWORD thread = GetCurrentThreadId();
    if (ThreadState* const spare = FindSpareState(thread))
    {
        return spare;
    }
    if (ThreadState* const made = MakeState())
    {
        return made;
    }
    ThreadState* const taken = TakeSpareState(thread);
    if (taken == nullptr)
    {
        std::terminate();
    }
    return taken;
}

} // namespace

void MakeExceptionMemory() noexcept
{
    stateIndex = FlsAlloc(&FreeState);
}

void FreeExceptionMemory() noexcept
{
    FlsFree(std::exchange(stateIndex, FLS_OUT_OF_INDEXES));
}

} // namespace norvepa

// The linker takes these in place of the run-time library's: all of that goes by these names.
namespace __cxxabiv1
{

extern "C" __cxa_eh_globals* __cxa_get_globals() noexcept
{
    return norvepa::StateOfThisThread();
}

extern "C" __cxa_eh_globals* __cxa_get_globals_fast() noexcept
{
    return norvepa::StateOfThisThread();
}

extern "C" void* __cxa_allocate_exception(std::size_t size) noexcept
{
    const std::size_t bytes = norvepa::HeaderBytes + size;
    void* memory = std::malloc(bytes);
    if (memory == nullptr)
    {
        memory = norvepa::TakeReserve(bytes);
    }
    if (memory == nullptr)
    {
        std::terminate();
    }
    std::memset(memory, 0, norvepa::HeaderBytes);
    return static_cast<std::byte*>(memory) + norvepa::HeaderBytes;
}

extern "C" void __cxa_free_exception(void* exception) noexcept
{
    void* const memory = static_cast<std::byte*>(exception) - norvepa::HeaderBytes;
    if (!norvepa::PutBackReserve(memory))
    {
        std::free(memory);
    }
}

} // namespace __cxxabiv1

// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cppcoreguidelines-no-malloc)

#endif
