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

template <typename Body>
[[nodiscard]] double MedianNanoseconds(const Body& body)
{
    constexpr double RoundNanoseconds = 20e6;
    constexpr std::size_t Rounds = 11;

    std::uint64_t runs = 1;
    while (NanosecondsOfRuns(body, runs) < RoundNanoseconds)
    {
        runs *= 2;
    }

    std::array<double, Rounds> rounds;
    std::generate(rounds.begin(), rounds.end(),
                  [&] { return NanosecondsOfRuns(body, runs) / static_cast<double>(runs); });
    std::nth_element(rounds.begin(), rounds.begin() + Rounds / 2, rounds.end());
    return rounds[Rounds / 2];
}

} // namespace norvepa::bench
