#pragma once

// How long one run of a body takes: the median of several rounds, each long enough for the clock.
//
// A body that the optimiser could see through has to be kept alive by itself; KeepBetweenRuns() stops it from
// moving work from one run to the next.

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>

namespace norvepa::bench
{

inline void KeepBetweenRuns() noexcept
{
    std::atomic_signal_fence(std::memory_order_seq_cst);
}

template <typename Body>
[[nodiscard]] double NanosecondsOfRuns(const Body& body, std::uint64_t runs)
{
    const auto begin = std::chrono::steady_clock::now();
    for (std::uint64_t i = 0; i < runs; ++i)
    {
        body();
        KeepBetweenRuns();
    }
    const std::chrono::duration<double, std::nano> passed = std::chrono::steady_clock::now() - begin;
    return passed.count();
}

// A body that needs something done ahead of each of its runs, which isn't timed.
template <typename Preparation, typename Body>
struct Behind
{
    Preparation prepare;
    Body body;
};
template <typename Preparation, typename Body>
Behind(Preparation, Body) -> Behind<Preparation, Body>;

template <typename Preparation, typename Body>
[[nodiscard]] double NanosecondsOfRuns(const Behind<Preparation, Body>& prepared, std::uint64_t runs)
{
    double nanoseconds = 0;
    for (std::uint64_t i = 0; i < runs; ++i)
    {
        prepared.prepare();
        nanoseconds += NanosecondsOfRuns(prepared.body, 1);
    }
    return nanoseconds;
}

inline constexpr std::size_t MedianRounds = 11;

template <typename Body>
[[nodiscard]] std::uint64_t RunsOfARound(const Body& body)
{
    constexpr double RoundNanoseconds = 20e6;

    std::uint64_t runs = 1;
    while (NanosecondsOfRuns(body, runs) < RoundNanoseconds)
    {
        runs *= 2;
    }
    return runs;
}

[[nodiscard]] inline double Median(std::array<double, MedianRounds> rounds)
{
    std::nth_element(rounds.begin(), rounds.begin() + MedianRounds / 2, rounds.end());
    return rounds[MedianRounds / 2];
}

template <typename Body>
[[nodiscard]] double MedianNanoseconds(const Body& body)
{
    const std::uint64_t runs = RunsOfARound(body);
    std::array<double, MedianRounds> rounds;
    std::generate(rounds.begin(), rounds.end(),
                  [&] { return NanosecondsOfRuns(body, runs) / static_cast<double>(runs); });
    return Median(rounds);
}

// Of several bodies whose rounds take turns, so that all meet the same quiet moments: their ratios count.
template <typename... Bodies>
[[nodiscard]] std::array<double, sizeof...(Bodies)> MedianNanosecondsInTurns(const Bodies&... bodies)
{
    constexpr std::size_t count = sizeof...(Bodies);

    const std::array<std::uint64_t, count> runs{RunsOfARound(bodies)...};
    std::array<std::array<double, MedianRounds>, count> rounds;
    for (std::size_t round = 0; round < MedianRounds; ++round)
    {
        std::size_t body = 0;
        ((rounds[body][round] = NanosecondsOfRuns(bodies, runs[body]) / static_cast<double>(runs[body]),
          ++body),
         ...);
    }
    std::array<double, count> medians;
    std::transform(rounds.begin(), rounds.end(), medians.begin(), &Median);
    return medians;
}

} // namespace norvepa::bench
