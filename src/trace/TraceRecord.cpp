#include "trace/TraceRecord.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>

namespace norvepa
{

namespace
{

struct LevelCode
{
    std::uint32_t level;
    std::string_view code;
};

constexpr std::array levelCodes{
    LevelCode{0, "##"},          LevelCode{1, "PA"},          LevelCode{2, "PX"},
    LevelCode{4, "PE"},          LevelCode{8, "FA"},          LevelCode{16, "FR"},
    LevelCode{32, "FW"},         LevelCode{64, "FM"},         LevelCode{128, "FE"},
    LevelCode{0x01000000, "L7"}, LevelCode{0x10000000, "AI"}, LevelCode{0x20000000, "L2"},
    LevelCode{0x40000000, "L4"}, LevelCode{0xFFFFFFFF, "--"},
};

constexpr std::uint32_t LevelsWithStatus = 128 | 4;
constexpr std::size_t TimeShown = 12; // the last characters of the performance counter's seconds

std::string_view CodeOf(std::uint32_t level) noexcept
{
    const auto found = std::ranges::find(levelCodes, level, &LevelCode::level);
    return found == levelCodes.end() ? "??" : found->code;
}

std::string_view LetterOf(LineFormat format) noexcept
{
    switch (format)
    {
    case LineFormat::Short:
        return "S";
    case LineFormat::Time:
        return "T";
    case LineFormat::Text:
        return "";
    case LineFormat::Long:
        break;
    }
    return "L";
}

std::string_view FilePart(std::string_view path) noexcept
{
    return path.substr(path.find_last_of("\\/") + 1);
}

void SetStatus(TraceRecord& record, const TraceEvent& event) noexcept
{
    if ((event.level & LevelsWithStatus) == 0)
    {
        record.status = "  ";
        record.extra = "      ";
        return;
    }

    const auto asSigned = static_cast<std::int32_t>(event.status);
    if (asSigned >= -1 && asSigned <= 1)
    {
        record.status.Print("%2d", asSigned);
        record.extra.Print("  %04x", event.extra);
        return;
    }
    record.status.Print("%08x", event.status);
}

FixedText<64> LocalTime() noexcept
{
    const auto now = std::chrono::system_clock::now();
    const auto second = std::chrono::floor<std::chrono::seconds>(now);
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(now - second).count();
    const std::time_t secondsAsTime = std::chrono::system_clock::to_time_t(second);

    std::tm local{};
    FixedText<59> clock;
    if (localtime_s(&local, &secondsAsTime) != 0 || std::strftime(clock.data(), 59, "%X", &local) == 0)
    {
        return FixedText<64>("00:00:00,000");
    }

    FixedText<64> time;
    time.Print("%s,%03d", clock.c_str(), static_cast<int>(milliseconds));
    return time;
}

FixedText<64> CounterTime(std::int64_t ticksPerSecond) noexcept
{
    LARGE_INTEGER ticks{};
    QueryPerformanceCounter(&ticks);

    FixedText<64> time;
    time.Print("%027.6f", static_cast<double>(ticks.QuadPart) / static_cast<double>(ticksPerSecond));
    return time;
}

FixedText<64> TimeFor(const TraceSettings& settings) noexcept
{
    switch (settings.format)
    {
    case LineFormat::Long:
        return LocalTime();
    case LineFormat::Time:
        return CounterTime(settings.ticksPerSecond);
    default:
        return {};
    }
}

std::string_view LastCharacters(std::string_view text, std::size_t count) noexcept
{
    return text.substr(text.size() - std::min(text.size(), count));
}

} // namespace

TraceRecord MakeTraceRecord(const TraceEvent& event, const TraceSettings& settings) noexcept
{
    TraceRecord record;
    record.formatLetter = LetterOf(settings.format);
    record.programId.Print("%-8.8s", TraceProgramId.data());
    record.component.Print("%3.3s", event.component);
    record.levelCode = CodeOf(event.level);
    SetStatus(record, event);
    record.time = TimeFor(settings);
    record.sourceFile = FilePart(event.sourceFile);
    record.line.Print("%0*d", 5, event.line);
    record.tag = event.tag;
    record.message = event.text;
    record.processId = GetCurrentProcessId();
    record.threadId = GetCurrentThreadId();
    return record;
}

std::optional<TraceLine> MakeTraceLine(const TraceRecord& record, LineFormat format) noexcept
{
    const char* letter = record.formatLetter.c_str();
    const char* program = record.programId.c_str();
    const char* component = record.component.c_str();
    const char* level = record.levelCode.c_str();
    const char* status = record.status.c_str();
    const char* extra = record.extra.c_str();
    const char* tag = record.tag.c_str();
    const char* message = record.message.c_str();

    TraceLine line;
    bool whole = false;
    switch (format)
    {
    case LineFormat::Short:
        whole = line.Print("%s %s %s %s %s%s %s %s", letter, program, level, component, status, extra, tag,
                           message);
        break;
    case LineFormat::Long:
        whole = line.Print("%s %s P%09dT%09d %s %s %s%s %s %s,%s %s %s", letter, program,
                           static_cast<int>(record.processId), static_cast<int>(record.threadId), level,
                           component, status, extra, record.time.c_str(), record.sourceFile.c_str(),
                           record.line.c_str(), tag, message);
        break;
    case LineFormat::Time: {
        const FixedText<TimeShown> time(LastCharacters(record.time.view(), TimeShown));
        whole = line.Print("%s %s %s %s %s%s %s %s %s", letter, program, level, component, status, extra,
                           time.c_str(), tag, message);
        break;
    }
    case LineFormat::Text:
        whole = line.Print("%s %s ", tag, message);
        break;
    }
    return whole ? std::optional(line) : std::nullopt;
}

} // namespace norvepa
