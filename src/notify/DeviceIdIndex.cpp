#include "notify/DeviceIdIndex.h"

#include "win/Undestroyed.h"

#include <windows.h>

namespace norvepa
{

constinit win::RecursiveMutex deviceIdMutex;

namespace
{

win::Undestroyed<DeviceIdIndex> theIndex;

constexpr std::size_t ComparedCharacters = 260;

} // namespace

DeviceIdIndex& deviceIdIndex = theIndex.get();

void FreeDeviceIdIndex() noexcept
{
    theIndex.Destroy();
}

bool DeviceIdIndex::Order::operator()(std::wstring_view left, std::wstring_view right) const noexcept
{
    left = left.substr(0, ComparedCharacters);
    right = right.substr(0, ComparedCharacters);
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_LESS_THAN;
}

bool DeviceIdIndex::IsValid()
{
    if (m_stale.exchange(false))
    {
        m_entries.clear();
        m_valid = false;
    }
    return m_valid;
}

void DeviceIdIndex::Add(const std::wstring& deviceId, const std::wstring& logDevice, const std::wstring& unit)
{
    if (deviceId.empty() || logDevice.empty() || unit.empty())
    {
        return;
    }
    m_entries[deviceId].push_back({logDevice, unit});
    m_valid = true;
}

const DeviceIdIndex::Entry* DeviceIdIndex::Find(const std::wstring& deviceId, std::size_t index) const
{
    const auto found = m_entries.find(deviceId);
    return found != m_entries.end() && index < found->second.size() ? &found->second[index] : nullptr;
}

} // namespace norvepa
