#include "FileTimes.h"

#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr std::int64_t Settled = 22'000'000; // in 100 ns: file times may be as coarse as two seconds

class TimedFile
{
public:
    TimedFile(const std::wstring& path, DWORD access)
        : m_path(path),
          m_file(CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                             nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        Require(m_file != INVALID_HANDLE_VALUE);
    }
    TimedFile(const TimedFile&) = delete;
    TimedFile& operator=(const TimedFile&) = delete;
    ~TimedFile() { CloseHandle(m_file); }

    [[nodiscard]] FileTimes times() const
    {
        FILE_BASIC_INFO times{};
        Require(GetFileInformationByHandleEx(m_file, FileBasicInfo, &times, sizeof times) != FALSE);
        return {times.LastWriteTime.QuadPart, times.ChangeTime.QuadPart};
    }

    void SetWritten(std::int64_t written) const
    {
        FILE_BASIC_INFO times{};
        times.LastWriteTime.QuadPart = written; // zeros leave all else as it is
        Require(SetFileInformationByHandle(m_file, FileBasicInfo, &times, sizeof times) != FALSE);
    }

private:
    void Require(bool succeeded) const
    {
        if (!succeeded)
        {
            throw std::runtime_error("no access to the times of " + ToUtf8(m_path));
        }
    }

    std::wstring m_path;
    HANDLE m_file;
};

std::int64_t Now()
{
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}

} // namespace

FileTimes TimesOf(const std::wstring& path)
{
    return TimedFile(path, FILE_READ_ATTRIBUTES).times();
}

void SetWriteTime(const std::wstring& path, std::int64_t written)
{
    TimedFile(path, FILE_WRITE_ATTRIBUTES).SetWritten(written);
}

void AwaitSettled(const std::vector<std::wstring>& paths)
{
    for (const std::wstring& path : paths)
    {
        const std::int64_t changed = TimesOf(path).changed;
        if (!Eventually([&] { return Now() - changed > Settled; }))
        {
            throw std::runtime_error("the clock doesn't go on");
        }
    }
}

} // namespace norvepa::test
