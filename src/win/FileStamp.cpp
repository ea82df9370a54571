#include "win/FileStamp.h"

#include "win/Handle.h"

#include <algorithm>

namespace norvepa::win
{

namespace
{

std::int64_t Now() noexcept
{
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}

} // namespace

FileStamp::FileStamp(LARGE_INTEGER size, LARGE_INTEGER written, LARGE_INTEGER changed) noexcept
    : m_size(size.QuadPart),
      m_written(written.QuadPart),
      m_changed(changed.QuadPart),
      m_age(m_changed == 0 ? 0 : Now() - std::max(m_written, m_changed))
{
}

std::optional<FileStamp> FileStamp::Of(const std::wstring& file) noexcept
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle handle(CreateFileW(file.c_str(), GENERIC_READ, everybody, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    return handle ? Of(handle.get()) : std::nullopt;
}

std::optional<FileStamp> FileStamp::Of(HANDLE file) noexcept
{
    FILE_BASIC_INFO times;
    FILE_STANDARD_INFO extent;
    if (!GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof times) ||
        !GetFileInformationByHandleEx(file, FileStandardInfo, &extent, sizeof extent))
    {
        return std::nullopt;
    }
    return FileStamp(extent.EndOfFile, times.LastWriteTime, times.ChangeTime);
}

} // namespace norvepa::win
