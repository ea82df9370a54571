#include "WatchCalls.h"

#include <algorithm>
#include <mutex>

namespace norvepa::test
{

namespace
{

constexpr DWORD Patience = 60'000; // milliseconds

struct Record
{
    std::vector<OpenedWatch> opened;
    std::vector<HANDLE> closed;
    std::vector<DWORD> timeouts;
    std::vector<std::wstring> scanned;
};

std::mutex recordMutex;
Record record;

// The system's own function: its plain name leads to the replacement while the hook is set.
template <typename Function>
Function* System(const char* name, Function*)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name)));
}

HANDLE WINAPI OpenWatch(const wchar_t* folder, BOOL subtree, DWORD filter)
{
    static const auto open =
        System<decltype(FindFirstChangeNotificationW)>("FindFirstChangeNotificationW", nullptr);
    const HANDLE handle = open(folder, subtree, filter);
    const std::lock_guard lock(recordMutex);
    record.opened.push_back({folder, subtree, filter, handle});
    return handle;
}

BOOL WINAPI CloseWatch(HANDLE handle)
{
    static const auto close =
        System<decltype(FindCloseChangeNotification)>("FindCloseChangeNotification", nullptr);
    {
        const std::lock_guard lock(recordMutex);
        record.closed.push_back(handle);
    }
    return close(handle);
}

DWORD WINAPI Wait(DWORD count, const HANDLE* handles, BOOL all, DWORD timeout)
{
    static const auto wait = System<decltype(WaitForMultipleObjects)>("WaitForMultipleObjects", nullptr);
    if (count == 2)
    {
        const std::lock_guard lock(recordMutex);
        record.timeouts.push_back(timeout);
    }
    return wait(count, handles, all, timeout);
}

HANDLE WINAPI Scan(const wchar_t* pattern, FINDEX_INFO_LEVELS level, void* found, FINDEX_SEARCH_OPS search,
                   void* filter, DWORD flags)
{
    static const auto scan = System<decltype(FindFirstFileExW)>("FindFirstFileExW", nullptr);
    {
        const std::lock_guard lock(recordMutex);
        record.scanned.emplace_back(pattern);
    }
    return scan(pattern, level, found, search, filter, flags);
}

Record Recorded()
{
    const std::lock_guard lock(recordMutex);
    return record;
}

} // namespace

WatchCalls::WatchCalls()
    : m_hooks{{{"FindFirstChangeNotificationW", OpenWatch},
               {"FindCloseChangeNotification", CloseWatch},
               {"WaitForMultipleObjects", Wait},
               {"FindFirstFileExW", Scan}}}
{
    record = {};
}

std::vector<OpenedWatch> WatchCalls::opened() const
{
    return Recorded().opened;
}

std::vector<HANDLE> WatchCalls::closed() const
{
    return Recorded().closed;
}

std::size_t WatchCalls::waits() const
{
    return Recorded().timeouts.size();
}

std::vector<DWORD> WatchCalls::timeouts() const
{
    return Recorded().timeouts;
}

std::size_t WatchCalls::scans(const std::wstring& folder) const
{
    const std::vector<std::wstring> scanned = Recorded().scanned;
    return static_cast<std::size_t>(std::count(scanned.begin(), scanned.end(), folder + L"\\*.xml"));
}

bool WatchCalls::AwaitChange(std::size_t which) const
{
    return WaitForSingleObject(Current(which), Patience) == WAIT_OBJECT_0;
}

bool WatchCalls::HasChange(std::size_t which) const
{
    return WaitForSingleObject(Current(which), 0) == WAIT_OBJECT_0;
}

HANDLE WatchCalls::Current(std::size_t which) const
{
    const std::vector<OpenedWatch> all = Recorded().opened;
    return all.at(all.size() - 2 + which).handle;
}

} // namespace norvepa::test
