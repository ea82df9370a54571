#pragma once

// The trace engine library as an output: a closed library of another maker, found below the machine's
// common program files. Its faults are told to the event log, and its silence is never the caller's.
//
// Callers must: hold the trace mutex.

#include "trace/FixedText.h"
#include "win/Handle.h"

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace norvepa
{

using EnginePath = FixedText<MAX_PATH + 100>;

class TraceEngine
{
public:
    // Nothing when the library or one of its exports isn't there.
    [[nodiscard]] static std::optional<TraceEngine> Load() noexcept;

    // Opens the trace with the first line, and tries again with the next one when that fails.
    void Write(std::string_view line) noexcept;

private:
    // Only the order of the arguments is known of the exports: each is passed at full register width, so
    // that it reads the same whether the other side takes 32 bits or 64.
    using OpenFunction = int(const char* metaInfoName, const char* settingsName, const char* settingsFolder,
                             std::uintptr_t, const char* version, std::uintptr_t* handle);
    using WriteFunction = int(std::uintptr_t handle, std::uintptr_t, std::uintptr_t, const void* buffer,
                              std::uintptr_t length);

    explicit TraceEngine(win::Library library) noexcept;

    [[nodiscard]] bool IsOpen(const char* line) noexcept;
    void TellOnce(const char* function, const char* line) noexcept;

    win::Library m_library;
    EnginePath m_settingsFolder;
    OpenFunction* m_open = nullptr;
    WriteFunction* m_write = nullptr;
    std::uintptr_t m_handle = 0;
    bool m_isOpen = false;
    bool m_told = false;
};

} // namespace norvepa
