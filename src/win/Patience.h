#pragma once

// How long an operation waits for a file that is in use, and how our own readers and writers give way to each
// other: both hold a file for parts of a millisecond. Who else holds one may do so for long, and mustn't make
// us slow.
//
// Callers may rely on: a wait takes 20 ms at most, with a try behind it; only on a machine so busy that this
// isn't the time for thirty tries it takes thirty tries. A writer of this process that waits is let ahead by
// the readers, who would otherwise take turns in keeping it out for good. A reader doesn't wait again for a
// file that one has waited for in vain, until it has been opened or nobody has looked at it for a second; and
// behind five waits in vain within a second no reader waits for the rest of it. So a walk over a hundred
// files of which one is held is late by 20 ms once, and by 100 ms if all of them are.

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace norvepa::win
{

// A file, told apart from others well enough for this. It is never 0.
using FileNumber = std::uint32_t;
[[nodiscard]] FileNumber NumberOfFile(std::wstring_view path) noexcept;

// The wait itself, from the first time that it is asked about.
class Wait
{
public:
    // Behind a short pause. False when the time was up already.
    [[nodiscard]] bool IsWorthAnotherTry() noexcept;

private:
    std::optional<std::chrono::steady_clock::time_point> m_begin;
    unsigned m_pauses = 0;
};

class ReadersPatience
{
public:
    explicit ReadersPatience(std::wstring_view file) noexcept; // comes back when no writer waits

    [[nodiscard]] bool IsWorthAnotherTry() noexcept;
    void Opened() noexcept; // and so in nobody's way any more

private:
    FileNumber m_file;
    Wait m_wait;
    bool m_hasWaited = false;
};

class WritersPatience
{
public:
    explicit WritersPatience(std::wstring_view file) noexcept;
    WritersPatience(const WritersPatience&) = delete;
    WritersPatience& operator=(const WritersPatience&) = delete;
    ~WritersPatience();

    [[nodiscard]] bool IsWorthAnotherTry() noexcept { return m_wait.IsWorthAnotherTry(); }
    void Opened() noexcept {}

private:
    FileNumber m_file;
    Wait m_wait;
};

} // namespace norvepa::win
