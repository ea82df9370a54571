#pragma once

// Files that have been as they are for long enough that the library believes what their folder tells of them.
// Nobody can set a file's time of change; it takes a wait, so a test program is to wait once for all its
// files.

#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace norvepa::test
{

[[nodiscard]] inline std::int64_t LastChange(const std::wstring& path) // in 100 ns
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, everybody, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    FILE_BASIC_INFO times{};
    const BOOL told = GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof times);
    CloseHandle(file);
    if (!told)
    {
        throw std::runtime_error("cannot tell when " + ToUtf8(path) + " was changed");
    }
    return times.ChangeTime.QuadPart;
}

// Until this file, and with it all that were written before it, hasn't been changed for 2.2 seconds.
inline void AwaitAge(const std::wstring& path)
{
    constexpr std::int64_t age = 22'000'000; // in 100 ns
    const std::int64_t changed = LastChange(path);
    const bool isOld = Eventually([=] {
        FILETIME now;
        GetSystemTimeAsFileTime(&now);
        return static_cast<std::int64_t>(std::uint64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime) -
                   changed >=
               age;
    });
    if (!isOld)
    {
        throw std::runtime_error(ToUtf8(path) + " doesn't get older");
    }
}

} // namespace norvepa::test
