#pragma once

// What norvctl's streams lead to: a console, which takes UTF-16 and has a width, or a file or pipe, which
// gets UTF-8 as it stands.

#include <cstddef>
#include <memory>
#include <streambuf>

namespace norvctl
{

// For as long as it lives, std::cout and std::cerr write whole characters to the console, if that is where
// they lead, whatever its code page is. One for a process, ahead of all output.
class ConsoleStreams
{
public:
    ConsoleStreams();
    ConsoleStreams(const ConsoleStreams&) = delete;
    ConsoleStreams& operator=(const ConsoleStreams&) = delete;
    ~ConsoleStreams();

private:
    std::unique_ptr<std::streambuf> m_output; // none: it doesn't lead to a console
    std::unique_ptr<std::streambuf> m_error;
    std::streambuf* m_plainOutput;
    std::streambuf* m_plainError;
};

[[nodiscard]] bool IsOutputConsole();
[[nodiscard]] bool IsErrorConsole();

// Columns of the window that standard output, or else standard error, leads to; 80 when there is none.
[[nodiscard]] std::size_t ConsoleWidth();

} // namespace norvctl
