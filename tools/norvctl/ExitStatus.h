#pragma once

// How norvctl ends, for scripts.

#include <array>

namespace norvctl
{

inline constexpr int Done = 0;
inline constexpr int Refused = 1;
inline constexpr int Misused = 2;

struct ExitStatus
{
    int status;
    const char* meaning;
};

// In words, for help and reference.
inline constexpr std::array<ExitStatus, 3> ExitStatuses{{
    {Done, "done; doctor: nothing is wrong"},
    {Refused,
     "refused, failed or not found; doctor: something is wrong; device diff --exit-code: they differ"},
    {Misused, "the command line is none that norvctl knows; device diff --exit-code: they can't be compared"},
}};

} // namespace norvctl
