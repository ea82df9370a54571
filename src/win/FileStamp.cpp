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

std::optional<FileStamp> FileStamp::Of(const std::wstring& file) noexcept
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle handle(CreateFileW(file.c_str(), GENERIC_READ, everybody, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    FILE_BASIC_INFO times;
    FILE_STANDARD_INFO extent;
    if (!handle || !GetFileInformationByHandleEx(handle.get(), FileBasicInfo, &times, sizeof times) ||
        !GetFileInformationByHandleEx(handle.get(), FileStandardInfo, &extent, sizeof extent))
    {
        return std::nullopt;
    }
    FileStamp stamp;
    stamp.m_size = extent.EndOfFile.QuadPart;
    stamp.m_written = times.LastWriteTime.QuadPart;
    stamp.m_changed = times.ChangeTime.QuadPart;
    stamp.m_age = stamp.m_changed == 0 ? 0 : Now() - std::max(stamp.m_written, stamp.m_changed);
    return stamp;
}

} // namespace norvepa::win
