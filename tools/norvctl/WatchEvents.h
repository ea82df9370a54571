#pragma once

// How a change made by one norvctl reaches a watch of another.
//
// A registration for notification lives in the process that makes the change, and names an event of whoever
// wants to know. So a watch owns an event under a name that every norvctl can work out, and a norvctl that is
// about to change something registers those names that a watch has taken, and waits until the library has
// announced the change.

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace norvctl
{

struct CloseEvent
{
    void operator()(void* event) const { CloseHandle(event); }
};
using Event = std::unique_ptr<void, CloseEvent>;

// The names that watches of a folder word, and of one file of it, may have: one each for several watches at
// once.
[[nodiscard]] std::vector<std::wstring> WatchEventNames(const std::wstring& folder, const std::wstring& file);

// Tells the watches of a change that the library has announced to nobody.
void TellWatches(const std::wstring& folder, const std::wstring& file);

// A change that is about to be made to a file of a folder word.
class Announcement
{
public:
    Announcement(const std::wstring& folder, const std::wstring& file);
    Announcement(const Announcement&) = delete;
    Announcement& operator=(const Announcement&) = delete;
    ~Announcement();

    // After a change: returns when the watches have been told, and at once for a temporary log device, of
    // which nobody is. False when two seconds have passed, as they do when nothing has changed.
    bool Wait() const;

    // Behind Wait: returns when no other announcement has come for a while. How many there are isn't told,
    // and those that come together can't be told apart.
    void WaitForOthers() const;

private:
    void RegisterWatches(const std::wstring& file, const std::vector<std::wstring>& eventNames);
    void Register(const std::wstring& file, const std::wstring& eventName);

    struct Registration
    {
        std::wstring file;
        std::wstring eventName;
    };

    std::wstring m_folder;
    std::vector<Registration> m_registrations;
    Event m_announced; // registered last: set when all others have been; null when nobody is told
};

} // namespace norvctl
