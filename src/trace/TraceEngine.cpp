#include "trace/TraceEngine.h"

#include "trace/TraceEventLog.h"
#include "trace/TraceRecord.h"

#include <windows.h>
#include <shlobj.h>

#include <array>
#include <cstring>

namespace norvepa
{

namespace
{

constexpr char LibraryPath[] = "\\Marvolt\\Automation\\TraceEngine\\bin\\NorvTraceEngine64X.dll";
constexpr char SettingsFolder[] = "\\Marvolt\\norvdos\\meta\\trace\\Settings\\";
constexpr char MetaInfoName[] = "Norvsdd_TraceMetaInfo.xml";
constexpr char SettingsName[] = "Norvsdd_TraceSettings.xml";
constexpr char Version[] = "1.0.0.0";

// The last two are looked up and never called: an engine without them isn't the one that is meant.
constexpr char OpenName[] = "TraceOpenA";
constexpr char WriteName[] = "TraceWrite";
constexpr std::array exportNames{OpenName, WriteName, "TraceCommand", "TraceClose"};

constexpr std::size_t PrefixBytes = 4; // 0x00, 0x47, then the line's length as 16 bits

// Empty when the machine doesn't know its folder of common program files.
EnginePath InCommonFiles(std::string_view below) noexcept
{
    char folder[MAX_PATH] = "";
    if (SHGetSpecialFolderPathA(nullptr, folder, CSIDL_PROGRAM_FILES_COMMON, FALSE) == FALSE)
    {
        return {};
    }
    EnginePath path(folder);
    path.Append(below);
    return path;
}

} // namespace

std::optional<TraceEngine> TraceEngine::Load() noexcept
{
    const EnginePath path = InCommonFiles(LibraryPath);
    win::Library library(path.view().empty() ? nullptr : LoadLibraryA(path.c_str()));
    if (!library)
    {
        LogTraceFault(TraceFault::EngineNotFound, path.c_str());
        return std::nullopt;
    }
    for (const char* name : exportNames)
    {
        if (GetProcAddress(library.get(), name) == nullptr)
        {
            LogTraceFault(TraceFault::ExportMissing, name);
            return std::nullopt;
        }
    }
    return TraceEngine(std::move(library));
}

TraceEngine::TraceEngine(win::Library library) noexcept
    : m_library(std::move(library)),
      m_settingsFolder(InCommonFiles(SettingsFolder)),
      m_open(m_library.Export<OpenFunction>(OpenName)),
      m_write(m_library.Export<WriteFunction>(WriteName))
{
}

void TraceEngine::Write(std::string_view line) noexcept
{
    const TraceLine text(line);
    if (!IsOpen(text.c_str()))
    {
        return;
    }

    const auto length = static_cast<std::uint16_t>(text.view().size());
    std::array<char, PrefixBytes + TraceLineLimit> buffer{'\x00', '\x47', static_cast<char>(length & 0xFF),
                                                          static_cast<char>(length >> 8)};
    std::memcpy(buffer.data() + PrefixBytes, text.c_str(), length);
    if (m_write(m_handle, 0, 1, buffer.data(), PrefixBytes + length) != 0)
    {
        TellOnce(WriteName, text.c_str());
    }
}

bool TraceEngine::IsOpen(const char* line) noexcept
{
    if (!m_isOpen)
    {
        m_handle = 0;
        m_isOpen = m_open(MetaInfoName, SettingsName, m_settingsFolder.c_str(), 0, Version, &m_handle) == 0;
        if (!m_isOpen)
        {
            TellOnce(OpenName, line);
        }
    }
    return m_isOpen;
}

void TraceEngine::TellOnce(const char* function, const char* line) noexcept
{
    if (!m_told)
    {
        m_told = true;
        LogTraceFault(TraceFault::CallFailed, function, line);
    }
}

} // namespace norvepa
