#include "Changes.h"

#include "WatchEvents.h"
#include "norvepa.h"

namespace norvctl
{

bool MakesDifference(const std::wstring& folder, const std::wstring& file,
                     const std::function<ReadResult()>& read, const std::function<void()>& change)
{
    const ReadResult before = read();
    const Announcement announcement(folder, file);
    change();
    const ReadResult after = read();
    const bool differs = before.result != after.result || before.value != after.value;
    const bool isKnownSame = !differs && after.result == PGSP_OK;
    // What can't be read, as an empty value, may have changed all the same: then it has been announced.
    const bool announced = !isKnownSame && announcement.Wait();
    return differs || announced;
}

void MakeChange(const std::wstring& folder, const std::wstring& file, const std::function<void()>& change)
{
    const Announcement announcement(folder, file);
    change();
    announcement.Wait();
}

void MakeChangeOfSteps(const std::wstring& folder, const std::wstring& file,
                       const std::function<void()>& change)
{
    const Announcement announcement(folder, file);
    change();
    announcement.Wait();
    announcement.WaitForOthers();
}

} // namespace norvctl
