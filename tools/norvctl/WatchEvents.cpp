#include "WatchEvents.h"

#include "Device.h"
#include "norvepa.h"

#include <cstdint>
#include <fmt/format.h>
#include <fmt/xchar.h>

namespace norvctl
{

namespace
{

constexpr int WatchesAtOnce = 8;
constexpr DWORD AnnouncementTimeout = 2000; // milliseconds
constexpr DWORD QuietTime = 200;            // milliseconds

// Names that differ in case alone are the same file, in all alphabets.
std::wstring InUpperCase(std::wstring name)
{
    const int length = static_cast<int>(name.size());
    LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, name.c_str(), length, name.data(), length, nullptr,
                  nullptr, 0);
    return name;
}

// Event names are short and hold no backslashes; file names are neither.
std::uint64_t HashOfName(const std::wstring& name)
{
    std::uint64_t hash = 0xcbf29ce484222325; // FNV-1a
    for (const wchar_t character : InUpperCase(name))
    {
        hash = (hash ^ static_cast<std::uint64_t>(character)) * 0x100000001b3;
    }
    return hash;
}

bool IsWaitedFor(const std::wstring& eventName)
{
    return Event(OpenEventW(EVENT_MODIFY_STATE, FALSE, eventName.c_str())) != nullptr;
}

} // namespace

std::vector<std::wstring> WatchEventNames(const std::wstring& folder, const std::wstring& file)
{
    std::vector<std::wstring> names;
    names.reserve(WatchesAtOnce);
    for (int i = 0; i < WatchesAtOnce; ++i)
    {
        names.push_back(
            file.empty() ? fmt::format(L"Global\\norvctl.watch.{}.{}", folder, i)
                         : fmt::format(L"Global\\norvctl.watch.{}.{:016x}.{}", folder, HashOfName(file), i));
    }
    return names;
}

void TellWatches(const std::wstring& folder, const std::wstring& file)
{
    std::vector<std::wstring> names = WatchEventNames(folder, {});
    const std::vector<std::wstring> ofFile = WatchEventNames(folder, file);
    names.insert(names.end(), ofFile.begin(), ofFile.end());
    for (const std::wstring& name : names)
    {
        if (const Event event{OpenEventW(EVENT_MODIFY_STATE, FALSE, name.c_str())})
        {
            SetEvent(event.get());
        }
    }
}

Announcement::Announcement(const std::wstring& folder, const std::wstring& file) : m_folder(folder)
{
    if (file.find(TemporaryPrefix) != std::wstring::npos)
    {
        return;
    }
    RegisterWatches({}, WatchEventNames(folder, {}));
    RegisterWatches(file, WatchEventNames(folder, file));
    const std::wstring own = fmt::format(L"norvctl.announced.{}", GetCurrentProcessId());
    m_announced.reset(CreateEventW(nullptr, FALSE, FALSE, own.c_str()));
    Register({}, own);
}

Announcement::~Announcement()
{
    for (const Registration& each : m_registrations)
    {
        UnRegisterNotification(m_folder.c_str(), each.file.c_str(), each.eventName.c_str());
    }
}

bool Announcement::Wait() const
{
    return !m_announced || WaitForSingleObject(m_announced.get(), AnnouncementTimeout) == WAIT_OBJECT_0;
}

void Announcement::WaitForOthers() const
{
    while (m_announced && WaitForSingleObject(m_announced.get(), QuietTime) == WAIT_OBJECT_0)
    {
    }
}

// Without those that no watch has: the library would warn of each in its trace.
void Announcement::RegisterWatches(const std::wstring& file, const std::vector<std::wstring>& eventNames)
{
    for (const std::wstring& name : eventNames)
    {
        if (IsWaitedFor(name))
        {
            Register(file, name);
        }
    }
}

void Announcement::Register(const std::wstring& file, const std::wstring& eventName)
{
    if (RegisterNotification(m_folder.c_str(), file.c_str(), eventName.c_str()) == PGSP_OK)
    {
        m_registrations.push_back({file, eventName});
    }
}

} // namespace norvctl
