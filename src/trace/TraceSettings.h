#pragma once

// What the registry says about tracing, and what holds while it says nothing.
//
// Callers may rely on: reading never fails; a value that is missing, empty or no text leaves its setting
// as the reset left it. What the reset doesn't name keeps its value from reading to reading.

#include "trace/FixedText.h"
#include "trace/TracePattern.h"

#include <cstdint>

namespace norvepa
{

enum class LineFormat : std::int32_t
{
    Short = 1,
    Long = 2,
    Time = 3,
    Text = 4
};

enum class TraceOutput : std::int32_t
{
    Driver = 0,
    Com1 = 1,
    Com2 = 2,
    Pipe = 3,
    File = 4,
    SharedMemory = 5,
    Debugger = 6,
    Engine = 7
};

// A path and a name of at most 259 characters each, and the backslash between them.
using TraceFileBase = FixedText<520>;

struct TraceSettings
{
    bool configured = false;           // there is a key to read
    std::uint32_t levels = 0xFFFFFFFF; // until the first reading
    std::uint32_t moduleLevels = 0;    // the number under the module's own name; decides nothing
    LineFormat format = LineFormat::Long;
    TraceOutput output = TraceOutput::File;
    std::int32_t consultSeconds = 0; // 0: never
    std::int32_t bytesPerFile = 2'097'152;
    std::uint32_t ringBytes = 2'000'000;
    std::int64_t ticksPerSecond = 1; // of the performance counter
    TraceFileBase fileBase{"C:\\TMP\\NorvFILE"};
    PatternList programs;   // TraceId
    PatternList components; // Module
    PatternList tags;       // FctName
    PatternList messages;   // String
};

// The settings that follow `before`: reset, then as the registry says.
[[nodiscard]] TraceSettings ReadTraceSettings(const TraceSettings& before, const char* moduleName) noexcept;

// The files' name without number and extension. A path that isn't empty always gets a backslash, also
// behind the one that it may end with; the name ends at its first dot.
[[nodiscard]] TraceFileBase MakeTraceFileBase(std::string_view path, std::string_view fileName) noexcept;

} // namespace norvepa
