#pragma once

// What each worker is at, seen by a watchman: a call that doesn't come back, or that ends the process, is
// told with its export and its card, and the process ends with 1. Neither can be told otherwise: a thread
// that is stuck in the library can't be ended, and an end of the process leaves nobody to tell.

#include "endurance/Deck.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <thread>

namespace norvepa::test
{

class Desks
{
public:
    static constexpr std::size_t Count = 9; // the workers', and one for whoever talks with the second process

    Desks();
    Desks(const Desks&) = delete;
    Desks& operator=(const Desks&) = delete;
    ~Desks();

    // While the object lives the calling thread is at this, which outlives it.
    class Task
    {
    public:
        Task(Desks& desks, std::size_t desk, const char* name, std::uint64_t card);
        Task(const Task&) = delete;
        Task& operator=(const Task&) = delete;
        ~Task();

    private:
        std::atomic<const char*>& m_name;
    };

private:
    struct Desk
    {
        std::atomic<const char*> name = nullptr; // of the export; null between two calls
        std::atomic<std::uint64_t> card = 0;
        std::atomic<ULONGLONG> begin = 0;
        std::atomic<DWORD> thread = 0;
    };

    static LONG WINAPI TellOfException(EXCEPTION_POINTERS* exception);
    static void TellOfAbort(int signal);
    static void TellWhoWasAtWhat();

    void Watch(const std::stop_token& stop) const;

    std::array<Desk, Count> m_desks;
    LPTOP_LEVEL_EXCEPTION_FILTER m_filterBefore;
    std::jthread m_watchman;
};

} // namespace norvepa::test
