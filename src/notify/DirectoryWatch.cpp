#include "frame/StoreLocations.h"
#include "notify/DeviceIdIndex.h"
#include "notify/ListingCache.h"
#include "notify/directoryCache.h"
#include "trace/TraceStatement.h"
#include "win/FileSystem.h"
#include "win/Mutex.h"
#include "win/Undestroyed.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <mutex>
#include <utility>

namespace norvepa
{

namespace
{

constexpr std::size_t LogDevices = 0;
constexpr std::size_t LogNames = 1;

// One at a time: a poll, or the watch being set up or ended.
constinit win::RecursiveMutex watchMutex;
win::Undestroyed<std::array<win::ChangeNotification, 2>> watch;
std::array<win::ChangeNotification, 2>& watchHandles = watch.get();
std::atomic<bool> watchActive{false}; // both handles are open

std::wstring LogDeviceFolder(const std::wstring& dataFolder)
{
    return MakeStoreFolder(dataFolder, L"data", L"LogDevices");
}

std::wstring LogNameFolder(const std::wstring& dataFolder)
{
    return MakeStoreFolder(dataFolder, L"data", L"LogNames");
}

constexpr TraceSource initSource{"initWatchDirectories: ", " BL"};

// Both folders or neither.
Result Subscribe(const std::wstring& dataFolder)
{
    win::ChangeNotification logDevices(LogDeviceFolder(dataFolder));
    if (!logDevices)
    {
        NORV_TRACE(initSource, TraceWarning, "Error subscribing to logDevice directory");
        return NoListing;
    }
    win::ChangeNotification logNames(LogNameFolder(dataFolder));
    if (!logNames)
    {
        NORV_TRACE(initSource, TraceWarning, "Error subscribing to logName directory");
        return NoListing;
    }

    watchHandles = {std::move(logDevices), std::move(logNames)};
    watchActive = true;
    return PGSP_OK;
}

} // namespace

Result initWatchDirectories(const std::wstring& dataFolder)
{
    if (watchActive)
    {
        return PGSP_OK;
    }
    const std::lock_guard lock(watchMutex);
    if (watchActive)
    {
        return PGSP_OK;
    }

    NORV_TRACE(initSource, TraceEntry, ">> start");
    const Result result = Subscribe(dataFolder);
    NORV_TRACE(initSource, TraceExit, "<< end");
    return result;
}

bool IsWatching() noexcept
{
    return watchActive;
}

void deinitWatchDirectories()
{
    constexpr TraceSource source{"deinitWatchDirectories: ", " BL"};

    NORV_TRACE(source, TraceEntry, ">> start");
    if (watchActive)
    {
        const std::lock_guard lock(watchMutex);
        watchHandles = {};
        watchActive = false;
    }
    NORV_TRACE(source, TraceExit, "<< end");
}

void FreeDirectoryCache() noexcept
{
    watch.Destroy();
    FreeDeviceIdIndex();
    FreeListings();
}

namespace
{

constexpr TraceSource changeSource{"getDirectoryChange: ", " BL"};

// Without a watch nothing that is kept can be trusted.
void DropEverything()
{
    {
        const std::lock_guard lock(directoryMutex);
        DropAllListings();
    }
    deviceIdIndex.MarkStale();
}

Result LogDevicesChanged(const std::wstring& dataFolder)
{
    Result result = PGSP_OK;
    NORV_TRACE(changeSource, TraceInfo, "Changes in LogDeviceDirectory");
    {
        const std::lock_guard lock(directoryMutex);
        DropListing(LogDeviceFolder(dataFolder));
        if (!watchHandles[LogDevices].Rearm())
        {
            NORV_TRACE(changeSource, TraceWarning,
                       "Error in FindNextChangeNotification for logDevice directory");
            result = NoListing;
        }
    }
    deviceIdIndex.MarkStale();
    return result;
}

// Log names aren't in the index of identities, which stays.
Result LogNamesChanged(const std::wstring& dataFolder)
{
    NORV_TRACE(changeSource, TraceInfo, "Changes in LogNameDirectory");
    const std::lock_guard lock(directoryMutex);
    DropListing(LogNameFolder(dataFolder));
    if (!watchHandles[LogNames].Rearm())
    {
        NORV_TRACE(changeSource, TraceWarning, "Error in FindNextChangeNotification for logName directory");
        return NoListing;
    }
    return PGSP_OK;
}

Result PollOnce(const std::wstring& dataFolder)
{
    const std::array<HANDLE, 2> handles{watchHandles[LogDevices].get(), watchHandles[LogNames].get()};
    switch (WaitForMultipleObjects(static_cast<DWORD>(handles.size()), handles.data(), FALSE, 0))
    {
    case WAIT_OBJECT_0 + LogDevices:
        return LogDevicesChanged(dataFolder);
    case WAIT_OBJECT_0 + LogNames:
        return LogNamesChanged(dataFolder);
    case WAIT_TIMEOUT:
        return PGSP_OK;
    default:
        NORV_TRACE(changeSource, TraceWarning, "Error watching directories");
        DropEverything();
        return NoListing;
    }
}

} // namespace

Result getDirectoryChange(const std::wstring& dataFolder)
{
    const std::lock_guard lock(watchMutex);
    if (initWatchDirectories(dataFolder) != PGSP_OK)
    {
        DropEverything();
        return NoListing;
    }

    // One wait tells the first of the handles that are signalled: two see a change of both folders.
    Result result = PollOnce(dataFolder);
    if (result == PGSP_OK)
    {
        result = PollOnce(dataFolder);
    }
    if (result != PGSP_OK)
    {
        deinitWatchDirectories();
    }
    return result;
}

} // namespace norvepa
