#include "trace/TraceSettings.h"

#include "trace/AsciiCase.h"
#include "win/RegistryKey.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace norvepa
{

namespace
{

constexpr wchar_t SettingsKey[] = L"Software\\MARVOLT\\DRAVIK\\TrcParams";
constexpr std::size_t ValueLimit = 260; // bytes, terminator included

template <typename Meaning>
struct Word
{
    std::string_view word;
    Meaning meaning;
};

constexpr std::array<Word<LineFormat>, 3> formatWords{{
    {"SHORT", LineFormat::Short},
    {"TIME", LineFormat::Time},
    {"TEXT", LineFormat::Text},
}};

constexpr std::array<Word<TraceOutput>, 8> outputWords{{
    {"VXD", TraceOutput::Driver},
    {"COM1", TraceOutput::Com1},
    {"COM2", TraceOutput::Com2},
    {"PIPE", TraceOutput::Pipe},
    {"FILE", TraceOutput::File},
    {"SM", TraceOutput::SharedMemory},
    {"DBG", TraceOutput::Debugger},
    {"NorvTRACEENGINE", TraceOutput::Engine},
}};

template <typename Words, typename Meaning>
Meaning MeaningOf(const Words& words, std::string_view text, Meaning otherwise) noexcept
{
    const auto found = std::ranges::find_if(
        words, [&](const auto& entry) { return EqualIgnoringAsciiCase(entry.word, text); });
    return found == words.end() ? otherwise : found->meaning;
}

// One value at a time: what Text() has answered lasts until it is asked again, terminated.
class Values
{
public:
    explicit Values(const win::RegistryKey& key) noexcept : m_key(key) {}

    [[nodiscard]] std::string_view Text(const char* name) noexcept
    {
        return m_key.ReadAnsiText(name, m_buffer);
    }

    // Both clamp to 32 bits: `long` has no more here.
    [[nodiscard]] long Number(const char* name) noexcept
    {
        return std::strtol(Text(name).empty() ? "" : m_buffer.data(), nullptr, 10);
    }
    [[nodiscard]] unsigned long Mask(const char* name) noexcept
    {
        return std::strtoul(Text(name).empty() ? "" : m_buffer.data(), nullptr, 0);
    }

private:
    const win::RegistryKey& m_key;
    std::array<char, ValueLimit + 1> m_buffer{};
};

template <typename Setting>
void SetIfPositive(Setting& setting, long number) noexcept
{
    if (number > 0)
    {
        setting = static_cast<Setting>(number);
    }
}

void ReadFileValues(Values& values, TraceSettings& settings) noexcept
{
    SetIfPositive(settings.bytesPerFile, values.Number("Byte/File"));

    const FixedText<ValueLimit> path(values.Text("Path"));
    const FixedText<ValueLimit> fileName(values.Text("FileName"));
    if (!path.view().empty() || !fileName.view().empty())
    {
        settings.fileBase = MakeTraceFileBase(path.view(), fileName.view());
    }
}

void ReadValues(Values& values, const char* moduleName, TraceSettings& settings) noexcept
{
    settings.consultSeconds = static_cast<std::int32_t>(values.Number("Consult"));
    settings.tags = values.Text("FctName");
    settings.format = MeaningOf(formatWords, values.Text("Format"), LineFormat::Long);
    settings.levels = static_cast<std::uint32_t>(values.Mask("Level"));
    settings.moduleLevels = static_cast<std::uint32_t>(values.Mask(moduleName));
    settings.components = values.Text("Module");
    settings.messages = values.Text("String");
    settings.programs = values.Text("TraceId");
    settings.output = MeaningOf(outputWords, values.Text("Output"), TraceOutput::File);

    if (settings.output == TraceOutput::SharedMemory)
    {
        SetIfPositive(settings.ringBytes, values.Number("sm_size"));
    }
    else if (settings.output == TraceOutput::File)
    {
        ReadFileValues(values, settings);
    }
}

TraceSettings Reset(TraceSettings settings) noexcept
{
    settings.levels = 0;
    settings.format = LineFormat::Long;
    settings.consultSeconds = 0;
    settings.output = TraceOutput::File;
    settings.programs = settings.components = settings.tags = settings.messages = PatternList();

    LARGE_INTEGER frequency{};
    const bool known = QueryPerformanceFrequency(&frequency) != 0 && frequency.QuadPart > 0;
    settings.ticksPerSecond = known ? frequency.QuadPart : 1;
    return settings;
}

} // namespace

TraceSettings ReadTraceSettings(const TraceSettings& before, const char* moduleName) noexcept
{
    TraceSettings settings = Reset(before);
    const auto key = win::RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, SettingsKey);
    settings.configured = static_cast<bool>(key);
    if (key)
    {
        Values values(key);
        ReadValues(values, moduleName, settings);
    }
    return settings;
}

TraceFileBase MakeTraceFileBase(std::string_view path, std::string_view fileName) noexcept
{
    TraceFileBase base(path.empty() ? "C:\\Tmp" : path);
    base.Append("\\");

    const std::string_view name = fileName.substr(0, fileName.find('.'));
    base.Append(name.empty() ? "NorvFile" : name);
    return base;
}

} // namespace norvepa
