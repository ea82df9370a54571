#pragma once

// How long an operation waits for a file that is in use. Our own readers and writers hold a file for parts of
// a millisecond, also those of other processes. Who else holds one may do so for long, and mustn't make us
// slow.
//
// Callers may rely on: a wait takes 20 ms at most, with a try behind it; only on a machine so busy that this
// isn't the time for a hundred tries it takes a hundred tries. A reader waits 1 ms for a file that one has
// waited for in vain, until it has been opened or nobody has looked at it for a second; and behind five waits
// in vain within a second all readers do for the rest of it. So a walk over a hundred files of which one is
// held is late by 21 ms, and by a fifth of a second if all of them are.

#include "win/FileTurn.h"

#include <chrono>
#include <optional>

namespace norvepa::win
{

// A writer's: each waits for itself.
class Patience
{
public:
    explicit Patience(FileNumber file) noexcept : m_file(file) {}

    // Behind a short pause. False when the time was up already.
    [[nodiscard]] bool IsWorthAnotherTry() noexcept;

    void Opened() const noexcept; // and so in nobody's way any more

protected:
    struct Limit
    {
        std::chrono::milliseconds time;
        unsigned fewestTries;
    };
    static const Limit Long;
    static const Limit Short;

    [[nodiscard]] bool IsWithin(const Limit& limit) noexcept;
    [[nodiscard]] FileNumber file() const noexcept { return m_file; }

private:
    FileNumber m_file;
    std::optional<std::chrono::steady_clock::time_point> m_begin; // of the wait
    unsigned m_pauses = 0;
};

class ReadersPatience : public Patience
{
public:
    using Patience::Patience;

    [[nodiscard]] bool IsWorthAnotherTry() noexcept;

private:
    const Limit* m_limit = nullptr; // until the first pause
};

} // namespace norvepa::win
