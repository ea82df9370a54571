#include "DeviceWalks.h"

#include "norvepa.h"
#include "notify/DeviceIdIndex.h"

#include <array>
#include <stdexcept>

namespace norvepa::bench
{

bool IsThereADevice(std::uint32_t index)
{
    std::array<wchar_t, 260> name{};
    auto length = static_cast<std::uint32_t>(name.size());
    const std::int32_t result = LogDeviceGetEnumBL(nullptr, index, name.data(), &length);
    if (result != PGSP_OK && result != PGSP_ERR_NO_MORE_ITEMS)
    {
        throw std::runtime_error("the enumeration is refused");
    }
    return result == PGSP_OK;
}

void LookUpAnew(std::size_t devices)
{
    std::array<wchar_t, 260> name{};
    std::array<wchar_t, 260> unit{};
    auto nameLength = static_cast<std::uint32_t>(name.size());
    auto unitLength = static_cast<std::uint32_t>(unit.size());
    const auto last = static_cast<std::uint32_t>(devices - 1);
    deviceIdIndex.MarkStale();
    if (LogDeviceGetEnumByDeviceIdBL(L"AFK220", last, name.data(), &nameLength, unit.data(), &unitLength) !=
        PGSP_OK)
    {
        throw std::runtime_error("a log device isn't found by its board");
    }
}

} // namespace norvepa::bench
