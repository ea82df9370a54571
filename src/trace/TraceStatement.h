#pragma once

// The trace statement: what every operation of the library writes its one log with.
//
// NORV_TRACE stands at the call site as a pattern, not as a function: switched off it costs one mask
// test and one compare with the shared settings counter, and evaluates none of its arguments.
//
// Callers may rely on: a statement never fails and never changes errno. Callers must not: rely on
// GetLastError() across a statement; give it an argument that may throw, which would keep the mutex of all
// processes; or call TraceFormat and TraceToAnsi outside of one: their buffers are static and belong to
// whoever holds that mutex.

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdio> // has each compiler's word for the formats of its printf
#include <source_location>

namespace norvepa
{

// The bits of the level mask that this library uses.
inline constexpr std::uint32_t TraceEntry = 8;
inline constexpr std::uint32_t TraceWarning = 16;
inline constexpr std::uint32_t TraceInfo = 64;
inline constexpr std::uint32_t TraceExit = 128;

// Who traces: the operation's name with a colon and a blank, and the component word.
struct TraceSource
{
    const char* tag;
    const char* component;
};

// The place in the source that a trace names. A statement names its own; a function that traces for others
// takes that of its call as its last argument, defaulted to TracePlace::current(): one address, made by the
// compiler.
using TracePlace = std::source_location;

// What a statement looks at. Written under the trace mutex only, read by everyone without it.
namespace trace_state
{
inline constinit const volatile std::uint32_t noSettingsCounter = 0;

inline constinit std::atomic<std::uint32_t> levelMask{0xFFFFFFFF}; // until the settings have been read
inline constinit std::atomic<std::uint32_t> settingsSnapshot{0};
inline constinit std::atomic<const volatile std::uint32_t*> settingsCounter{&noSettingsCounter};
} // namespace trace_state

// True when the level is switched on, and when the settings must be read anew to know.
[[nodiscard]] inline bool TraceWanted(std::uint32_t level) noexcept
{
    return (trace_state::levelMask.load(std::memory_order_relaxed) & level) != 0 ||
           *trace_state::settingsCounter.load(std::memory_order_relaxed) !=
               trace_state::settingsSnapshot.load(std::memory_order_relaxed);
}

// Waits for the trace mutex of all processes, for at most ten seconds, and goes on either way.
void TraceLock() noexcept;
void TraceUnlock() noexcept;

// Formats into the one static buffer of 1024 characters; a longer text is cut.
[[gnu::format(__MINGW_PRINTF_FORMAT, 1, 2)]] const char* TraceFormat(const char* format, ...) noexcept;

// UTF-16 to the machine's ANSI code page, in one of five slots of 600 bytes each: at most five
// converted strings stand in one statement. A longer string is cut, a null one is empty.
[[nodiscard]] const char* TraceToAnsi(const wchar_t* text) noexcept;

// The same for text that may lack its terminator: reads at most `capacity` characters. Meant for
// callers' output buffers, which hold anything until an operation has succeeded.
[[nodiscard]] const char* TraceToAnsi(const wchar_t* text, std::size_t capacity) noexcept;

// Hands one event to the outputs. Status and extra are 0 at every call site of this library.
void TraceOut(const char* tag, std::uint32_t level, const char* component, std::uint32_t status,
              std::uint32_t extra, const char* sourceFile, int line, const char* text) noexcept;

} // namespace norvepa

#define NORV_TRACE(source, level, ...)                                                                       \
    NORV_TRACE_AT(::norvepa::TracePlace::current(), source, level, __VA_ARGS__)

// The same in the name of another place.
#define NORV_TRACE_AT(place, source, level, ...)                                                             \
    do                                                                                                       \
    {                                                                                                        \
        if (::norvepa::TraceWanted(level)) [[unlikely]]                                                      \
        {                                                                                                    \
            ::norvepa::TraceLock();                                                                          \
            ::norvepa::TraceOut((source).tag, level, (source).component, 0, 0, (place).file_name(),          \
                                static_cast<int>((place).line()), ::norvepa::TraceFormat(__VA_ARGS__));      \
            ::norvepa::TraceUnlock();                                                                        \
        }                                                                                                    \
    } while (false)
