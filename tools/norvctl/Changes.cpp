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
    const bool differs = before != after;
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

ChangeOfValues MakeChangeOfValues(const std::wstring& folder, const std::wstring& file,
                                  const std::function<std::vector<NameAndValue>()>& read,
                                  const std::function<int32_t()>& change)
{
    const std::vector<NameAndValue> before = read();
    const Announcement announcement(folder, file);
    ChangeOfValues made{change(), {}};
    made.changes = ChangesBetween(before, read());
    if (!made.changes.empty())
    {
        announcement.Wait();
    }
    announcement.WaitForOthers(); // also of values that have been set and set back
    return made;
}

} // namespace norvctl
