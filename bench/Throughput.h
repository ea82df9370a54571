#pragma once

// How many runs of a body a second threads make that run it side by side, and what a second thread is worth.
//
// The body gets a text of its thread's own, which keeps its memory from run to run as that of a caller does
// who asks for one item after the other.

#include "Stopwatch.h"
#include "support/AllAtOnce.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace norvepa::bench
{

struct Throughput
{
    double ofOne = 0; // runs a second
    double ofTwo = 0; // both together

    [[nodiscard]] double Ratio() const noexcept { return ofTwo / ofOne; }
};

// What one of several threads did.
struct Share
{
    std::chrono::steady_clock::time_point begin;
    std::chrono::steady_clock::time_point end;
    std::uint64_t runs = 0;
};

template <typename Body>
[[nodiscard]] Share RunForAWhile(const Body& body)
{
    constexpr std::chrono::milliseconds RoundTime{20};
    constexpr std::uint64_t RunsBetweenLooksAtTheClock = 100;

    std::wstring text;
    Share share;
    share.begin = share.end = std::chrono::steady_clock::now();
    while (share.end - share.begin < RoundTime)
    {
        for (std::uint64_t i = 0; i < RunsBetweenLooksAtTheClock; ++i)
        {
            body(text);
            KeepBetweenRuns();
        }
        share.runs += RunsBetweenLooksAtTheClock;
        share.end = std::chrono::steady_clock::now();
    }
    return share;
}

// From the first one's begin to the last one's end: threads that the machine lets run one behind the other
// aren't taken for two at once.
template <typename Body>
[[nodiscard]] double RunsPerSecond(int threads, const Body& body)
{
    std::vector<Share> shares(static_cast<std::size_t>(threads));
    test::AllAtOnce(threads,
                    [&](int thread) { shares[static_cast<std::size_t>(thread)] = RunForAWhile(body); });

    Share all = shares.front();
    for (auto share = std::next(shares.begin()); share != shares.end(); ++share)
    {
        all.begin = std::min(all.begin, share->begin);
        all.end = std::max(all.end, share->end);
        all.runs += share->runs;
    }
    return static_cast<double>(all.runs) / std::chrono::duration<double>(all.end - all.begin).count();
}

// The best of several rounds each: what else runs on the machine only ever takes away. The rounds of one and
// of two take turns, so that both meet the same quiet moments.
template <typename Body>
[[nodiscard]] Throughput BestThroughput(const Body& body)
{
    constexpr int Rounds = 75;

    Throughput best;
    for (int round = 0; round < Rounds; ++round)
    {
        best.ofOne = std::max(best.ofOne, RunsPerSecond(1, body));
        best.ofTwo = std::max(best.ofTwo, RunsPerSecond(2, body));
    }
    return best;
}

} // namespace norvepa::bench
