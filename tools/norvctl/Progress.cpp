#include "Progress.h"

#include "Console.h"
#include "DisplayText.h"

#include <iostream>

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace norvctl
{

namespace
{

constexpr std::size_t BarWidth = 24;
constexpr std::chrono::milliseconds Pause(100); // between two drawings

std::string Bar(std::size_t done, std::size_t total)
{
    const std::size_t full = std::min(done, total) * BarWidth / total;
    return fmt::format("[{}{}] {:>3} %", std::string(full, '#'), std::string(BarWidth - full, '.'),
                       std::min(done, total) * 100 / total);
}

} // namespace

Progress::Progress(std::string what, std::size_t total)
    : m_what(std::move(what)), m_total(total), m_isShown(IsErrorConsole())
{
}

Progress::~Progress()
{
    Clear();
}

void Progress::Tell(std::size_t done, const std::string& present)
{
    const Clock::time_point now = Clock::now();
    if (!m_isShown || now < m_nextDrawing)
    {
        return;
    }
    m_nextDrawing = now + Pause;
    const std::size_t room = ConsoleWidth() - 1; // a full line would go on in the next
    std::cerr << '\r' << Padded(Shortened(Line(done, present), room), room) << std::flush;
    m_isDrawn = true;
}

void Progress::Clear()
{
    if (m_isDrawn)
    {
        std::cerr << '\r' << std::string(ConsoleWidth() - 1, ' ') << '\r' << std::flush;
        m_isDrawn = false;
        m_nextDrawing = Clock::now();
    }
}

std::string Progress::Line(std::size_t done, const std::string& present) const
{
    return m_total == 0 ? fmt::format("{}: {} {}", m_what, done, OnOneLine(present))
                        : fmt::format("{} {} {}", m_what, Bar(done, m_total), OnOneLine(present));
}

} // namespace norvctl
