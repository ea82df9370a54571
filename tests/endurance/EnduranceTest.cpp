#include "endurance/Endurance.h"

#include "support/Environment.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <gmock/gmock.h>
#include <numeric>
#include <string>

namespace norvepa::test
{
namespace
{

using testing::IsEmpty;

using Milliseconds = std::chrono::milliseconds;

// How long a life lasts, in spans. What the process has at the end of the first is what it is to have at the
// end.
struct Life
{
    unsigned spans;
    Milliseconds span;
    std::uint32_t cardsEach;
};

constexpr std::uint64_t CallsAtLeast = 5;

// Wine's document engine keeps a document of each log name that is made, and a buffer of each empty file.
constexpr std::size_t BytesOfEnginesPerCall = 60;

// A lock has an event as soon as two threads have met at it.
constexpr std::size_t MoreHandles = 8;

// What chance finds to ask after the first span.
constexpr std::int64_t MoreBlocks = 300;

constexpr Life Short{3, std::chrono::seconds(3), 20};
constexpr std::uint32_t CardsOfALongLife = 150;

Life ChosenLife()
{
    const auto minutes = static_cast<unsigned>(FromEnvironment("NORV_ENDURE_MINUTES", 0));
    return minutes == 0 ? Short : Life{minutes, std::chrono::minutes(1), CardsOfALongLife};
}

std::size_t Sum(const std::array<std::size_t, 256>& handles)
{
    return std::accumulate(handles.begin(), handles.end(), std::size_t{0});
}

void Tell(unsigned span, double callsPerSecond, const Endurance::State& state)
{
    const ProcessResources& process = state.process;
    std::printf("%3u: %.0f calls per second, %zu handles, %zu threads, %zu blocks of %zu bytes, "
                "%lld of them the library's own\n",
                span, callsPerSecond, Sum(process.handles), process.threads, process.heapBlocks,
                process.heapBytes, static_cast<long long>(state.ownBlocks));
    std::fflush(stdout);
}

// The calls of one span, and what there is behind them.
Endurance::State LiveOn(Endurance& endurance, unsigned span, Milliseconds time)
{
    const std::uint64_t callsBefore = endurance.ledger().total();
    const auto begin = std::chrono::steady_clock::now();
    endurance.Work(time);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;

    const Endurance::State state = endurance.Rest();
    Tell(span, static_cast<double>(endurance.ledger().total() - callsBefore) / seconds.count(), state);
    return state;
}

// All but what has limits of its own.
ProcessResources WithoutMemoryAndHandles(ProcessResources resources)
{
    resources.heapBlocks = 0;
    resources.heapBytes = 0;
    resources.handles = {};
    return resources;
}

TEST(Endurance, LeavesNothingBehindAndNoThreadInTheLibrary)
{
    const Life life = ChosenLife();
    const unsigned long long seed = FromEnvironment("NORV_ENDURE_SEED", 1);
    std::printf("seed %llu\n", seed);
    Endurance endurance(seed, life.cardsEach);
    const Endurance::State first = LiveOn(endurance, 1, life.span);
    const std::uint64_t callsOfTheFirst = endurance.ledger().total();

    Endurance::State last = first;
    for (unsigned span = 2; span <= life.spans; ++span)
    {
        last = LiveOn(endurance, span, life.span);
    }

    const std::uint64_t calls = endurance.ledger().total() - callsOfTheFirst;
    EXPECT_THAT(endurance.ledger().faults(), IsEmpty());
    EXPECT_THAT(endurance.ledger().rareCalls(CallsAtLeast), IsEmpty());
    EXPECT_EQ(WithoutMemoryAndHandles(last.process), WithoutMemoryAndHandles(first.process));
    EXPECT_LE(Sum(last.process.handles), Sum(first.process.handles) + MoreHandles)
        << testing::PrintToString(last.process);
    EXPECT_LE(last.ownBlocks, first.ownBlocks + MoreBlocks);
    EXPECT_LE(last.process.heapBytes, first.process.heapBytes + BytesOfEnginesPerCall * calls);
}

} // namespace
} // namespace norvepa::test
