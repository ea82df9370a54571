#pragma once

// A long life of the library in one process, in short: a store, eight threads that call all there is to call,
// and a second process that changes and breaks the store meanwhile. By shifts: each has threads of its own,
// some with COM in either form, some without.

#include "endurance/Deck.h"
#include "endurance/Desks.h"
#include "endurance/Ledger.h"
#include "endurance/OwnBlocks.h"
#include "support/LoadedLibrary.h"
#include "support/NamedEvent.h"
#include "support/Peer.h"
#include "support/ProcessResources.h"
#include "support/StoreRoots.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>

namespace norvepa::test
{

// Our sample store with its texts.
struct FilledRoots : StoreRoots
{
    FilledRoots();
};

class Endurance
{
public:
    Endurance(std::uint64_t seed, std::uint32_t cardsEach);

    // At least for that long, and until the whole deck has been dealt.
    void Work(std::chrono::milliseconds time);

    // What there is when nobody works, the store is whole, and the library keeps nothing that it can let go
    // of.
    struct State
    {
        ProcessResources process;
        std::int64_t ownBlocks; // of the library, beside those that it began with
    };
    [[nodiscard]] State Rest();

    [[nodiscard]] const Ledger& ledger() const { return m_ledger; }

private:
    using Time = std::chrono::steady_clock::time_point;

    void WorkInAShift(Time end);
    void Call(std::size_t worker, Time end);
    void Disturb(Time end);
    void AskPeer(const std::string& command);

    const FilledRoots m_roots;
    const Exports m_library;
    const OwnBlocks m_blocks{m_library.module()};
    std::deque<NamedEvent> m_events;
    Peer m_peer{L"store_disturber.exe", m_roots.registry()};
    Desks m_desks;
    Deck m_deck;
    Ledger m_ledger{m_deck.calls()};
    std::uint64_t m_seed;
    std::uint64_t m_disturbances = 0;
    const std::size_t m_threadsAtRest;
};

} // namespace norvepa::test
