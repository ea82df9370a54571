#pragma once

// A walk over the log devices that the enumeration yields: those that are neither hidden nor temporary, and
// of the filter's type when there is one.
//
// Callers may rely on: each step reads the log devices from where the last one ended, as they are now; the
// store's folder is looked up and listed once. They must not keep a walk from one call of an export to the
// next: a log device that has been hidden or shown since then moves all that follow it.

#include "frame/ExportFrame.h"
#include "store/FileWalk.h"
#include "xml/CallImages.h"

#include <cstdint>
#include <string>

namespace norvepa
{

class DeviceWalk
{
public:
    // A null `netType` is no filter; it must outlive the walk. `capacity` is that of the buffer that the
    // names are for, in characters with the terminator.
    DeviceWalk(const ExportFrame& frame, const wchar_t* netType, std::uint32_t capacity);

    // PGSP_ERR_NO_MORE_ITEMS past the end. A name that doesn't fit ends the walk with
    // PGSP_ERR_BUFFER_TOO_SHORT wherever it stands, whether it would be yielded or not; a capacity of 0 with
    // PGSP_ERR_INVALID_PARAMETERS.
    [[nodiscard]] Result Next(std::wstring& name);

private:
    [[nodiscard]] Result NextCandidate(std::wstring& name);
    [[nodiscard]] bool IsEnumerated(const std::wstring& name) const;

    const ExportFrame& m_frame;
    const wchar_t* m_netType;
    std::uint32_t m_capacity;
    std::wstring m_dataFolder; // without one the path is relative; no code tells that here
    FileWalk m_files;
    FolderWalk m_look;
    std::uint32_t m_position = 0; // of the next candidate
};

// What each call of the enumeration traces first and, when it has found one, last.
void TraceEnumEntry(const ExportFrame& frame, const wchar_t* netType, std::uint32_t index,
                    TracePlace place = TracePlace::current());
void TraceEnumFound(const ExportFrame& frame, const std::wstring& name, std::uint32_t index,
                    TracePlace place = TracePlace::current());
void TraceEnumEnd(const ExportFrame& frame, Result result, TracePlace place = TracePlace::current());

} // namespace norvepa
