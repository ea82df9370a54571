#include "FileAge.h"

#include "win/Handle.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace norvepa::bench
{

namespace
{

constexpr std::int64_t TicksOfAMillisecond = 10'000; // of 100 ns

std::int64_t Now()
{
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}

std::int64_t LastChange(const std::wstring& file)
{
    const win::Handle handle(CreateFileW(file.c_str(), FILE_READ_ATTRIBUTES,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                         OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    FILE_BASIC_INFO times;
    if (!handle || !GetFileInformationByHandleEx(handle.get(), FileBasicInfo, &times, sizeof times))
    {
        throw std::runtime_error("a file's age isn't known");
    }
    return std::max(times.ChangeTime.QuadPart, times.LastWriteTime.QuadPart);
}

std::int64_t Age(const std::wstring& file)
{
    return Now() - LastChange(file);
}

} // namespace

void WaitUntilOld(const std::wstring& file)
{
    constexpr std::int64_t Old = 2'200 * TicksOfAMillisecond; // the coarsest file times have grains of 2 s
    constexpr DWORD PollMilliseconds = 20;

    while (Age(file) < Old)
    {
        Sleep(PollMilliseconds);
    }
}

} // namespace norvepa::bench
