#pragma once

// The time of one step of a loop, as the median of several rounds: what the machine does beside is left out.

#include <algorithm>
#include <array>
#include <chrono>

namespace norvepa::bench
{

// Nanoseconds.
template <typename Step>
[[nodiscard]] double TimeOf(unsigned steps, const Step& step)
{
    using Clock = std::chrono::steady_clock;
    std::array<double, 9> rounds{};
    for (double& round : rounds)
    {
        const Clock::time_point begin = Clock::now();
        for (unsigned i = 0; i < steps; ++i)
        {
            step(i);
        }
        round = std::chrono::duration<double, std::nano>(Clock::now() - begin).count() / steps;
    }
    std::nth_element(rounds.begin(), rounds.begin() + rounds.size() / 2, rounds.end());
    return rounds[rounds.size() / 2];
}

} // namespace norvepa::bench
