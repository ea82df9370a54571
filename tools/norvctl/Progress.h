#pragma once

// A line on standard error that tells how far long work has come. Only a console has it: where standard error
// is kept in a file, or is read by a program, nothing is written.

#include <chrono>
#include <cstddef>
#include <string>

namespace norvctl
{

class Progress
{
public:
    // What is done, as "backup"; `total` is the number of steps, 0 when nobody knows.
    explicit Progress(std::string what, std::size_t total = 0);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress(); // takes the line away

    // The number of steps is known now.
    void Begin(std::size_t total) { m_total = total; }

    // So many steps are done; `present` is what comes next, as a file's name. Drawn a few times a second.
    void Tell(std::size_t done, const std::string& present);

    // Takes the line away, so that something else can be printed; the next Tell draws it again.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] std::string Line(std::size_t done, const std::string& present) const;

    std::string m_what;
    std::size_t m_total;
    bool m_isShown; // standard error is a console
    bool m_isDrawn = false;
    Clock::time_point m_nextDrawing = Clock::now();
};

} // namespace norvctl
