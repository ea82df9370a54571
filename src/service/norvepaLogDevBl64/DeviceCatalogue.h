#pragma once

// What the catalogue has to do with one log device, for the length of one call.
//
// A call asks for several words of a parameter. The roots, and which board and protocol the log device names,
// are looked up when they are first wanted and then stand for the whole call. Callers must not: keep one
// beyond the call; the next one sees what has changed.

#include "frame/ExportFrame.h"

#include <optional>
#include <string>
#include <utility>

namespace norvepa
{

class DeviceCatalogue
{
public:
    // The name is the caller's and has to outlive the object.
    explicit DeviceCatalogue(const wchar_t* logDevice) noexcept : m_logDevice(logDevice) {}
    DeviceCatalogue(const wchar_t* logDevice, std::wstring dataFolder)
        : m_logDevice(logDevice), m_dataFolder(std::move(dataFolder))
    {
    }

    [[nodiscard]] const wchar_t* logDevice() const noexcept { return m_logDevice; }
    [[nodiscard]] const std::wstring& dataFolder();

    // The exit, traced, when one of the roots isn't there; none when the two files are known. Without a data
    // folder it is PGSP_ERR_FOLDER_NOT_FOUND; without a program folder PGSP_OK: nothing is known, so
    // everything passes.
    [[nodiscard]] std::optional<Result> Unavailable(const ExportFrame& frame,
                                                    TracePlace place = TracePlace::current());

    // Store paths. What can't be read of the log device makes a file name that nothing has.
    [[nodiscard]] const std::wstring& board() const noexcept { return m_board; }
    [[nodiscard]] const std::wstring& protocol() const noexcept { return m_protocol; }

private:
    [[nodiscard]] const std::wstring& ProgramFolder();
    void ReadAttributes();

    const wchar_t* m_logDevice;
    std::optional<std::wstring> m_dataFolder;
    std::optional<std::wstring> m_programFolder;
    std::wstring m_deviceId;
    std::wstring m_netType;
    std::wstring m_board; // empty until the attributes have been read
    std::wstring m_protocol;
};

} // namespace norvepa
