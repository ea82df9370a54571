#pragma once

// The index of log devices by the identity of their board, and the rule by which it is dropped.
//
// The directory watch may find out that the index is stale while another thread holds it. It doesn't wait:
// it marks it, and whoever looks next empties it first. So no order of the two locks can block. A change that
// is met while the index is being made shows in the next answer, not in this one.

#include "win/Mutex.h"

#include <atomic>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

class DeviceIdIndex
{
public:
    struct Entry
    {
        std::wstring logDevice;
        std::wstring unit;
    };

    // On any thread, under whatever lock.
    void MarkStale() noexcept { m_stale.store(true); }

    // Everything below only while deviceIdMutex is held.

    // True when the index may be used: something has been added since the last clearing.
    [[nodiscard]] bool IsValid();

    // Behind the entries of the same identity. Does nothing when any of the three is empty.
    void Add(const std::wstring& deviceId, const std::wstring& logDevice, const std::wstring& unit);

    // The entry at `index` among those of an identity, in the order they were added; null past the last.
    [[nodiscard]] const Entry* Find(const std::wstring& deviceId, std::size_t index) const;

private:
    // Identities are told apart without regard to case, by their first 260 characters.
    struct Order
    {
        bool operator()(std::wstring_view left, std::wstring_view right) const noexcept;
    };

    std::atomic<bool> m_stale{false};
    std::map<std::wstring, std::vector<Entry>, Order> m_entries;
    bool m_valid = false;
};

// Held from before the watch is polled until the answer is copied. Recursive: answering enumerates.
extern constinit win::RecursiveMutex deviceIdMutex;
extern DeviceIdIndex& deviceIdIndex;

// When the module goes.
void FreeDeviceIdIndex() noexcept;

} // namespace norvepa
