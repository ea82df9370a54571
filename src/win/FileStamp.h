#pragma once

// What tells whether a file still is what it was when it was read, without reading it again.
//
// Callers may rely on: equal stamps, of which the first is certain, are those of one content; a copy that
// brings an old write time along has a new change time. Nobody is kept from the file by the look at it. What
// can't be relied on is a file server whose clock lies two seconds and more behind that of this machine.
// Callers must: take the stamp ahead of the reading, and read when in doubt.

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

namespace norvepa::win
{

class FileStamp
{
public:
    // None when the file can't be opened for reading.
    [[nodiscard]] static std::optional<FileStamp> Of(const std::wstring& file) noexcept;

    // Of an open file; none when the system doesn't tell.
    [[nodiscard]] static std::optional<FileStamp> Of(HANDLE file) noexcept;

    // Of a file that a folder lists, with what stands there.
    FileStamp(LARGE_INTEGER size, LARGE_INTEGER written, LARGE_INTEGER changed) noexcept;

    // False for a file that was changed so lately that the clock may not tell another change from that one,
    // and on a file system that keeps no change times.
    [[nodiscard]] bool IsCertain() const noexcept { return m_age >= Grain; }

    // Of the same content, whenever they were taken.
    [[nodiscard]] bool operator==(const FileStamp& other) const noexcept
    {
        return m_size == other.m_size && m_written == other.m_written && m_changed == other.m_changed;
    }

    [[nodiscard]] std::int64_t size() const noexcept { return m_size; } // in bytes

private:
    // In 100 ns: two seconds, as coarse as the times of any file system are.
    static constexpr std::int64_t Grain = 20'000'000;

    std::int64_t m_size;
    std::int64_t m_written;
    std::int64_t m_changed;
    std::int64_t m_age; // since the change, when the stamp was taken; 0 when it isn't known
};

} // namespace norvepa::win
