#pragma once

// The machine's trace settings, from outside: the registry key that every traced process reads, and the
// shared counter that tells them to read it anew.

#include <cstdint>
#include <string>
#include <vector>

namespace norvctl
{

struct TraceSettings
{
    std::string level = "0xD8"; // entries, exits, steps and warnings
    std::string format = "LONG";
    std::string output = "FILE";
    std::string folder = "C:\\TMP";
    std::string file = "NorvFILE";
};

struct TraceValue
{
    std::string name;
    std::string text;
};

struct TraceStatus
{
    bool on = false;
    std::uint32_t counter = 0;
    std::vector<TraceValue> values; // those that are set, in the order of their meaning
};

[[nodiscard]] TraceStatus ReadTraceStatus();

// Both throw when the registry refuses; they need the rights to write there. Switching on makes the folder
// that files are to go to.
void SwitchTraceOn(const TraceSettings& settings);
void SwitchTraceOff();

} // namespace norvctl
