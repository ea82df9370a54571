#include "frame/Text.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

namespace norvepa
{

std::wstring LogDeviceFolder(std::wstring_view dataFolder)
{
    return MakeStoreFolder(dataFolder, L"data", L"LogDevices");
}

std::wstring LogDeviceFile(std::wstring_view dataFolder, std::wstring_view logDevice)
{
    return JoinPath(LogDeviceFolder(dataFolder), logDevice);
}

bool IsRootAttribute(std::wstring_view parameter) noexcept
{
    return EqualNoCase(parameter, L"DeviceID") || EqualNoCase(parameter, L"CP_TYPE");
}

std::optional<SubdeviceName> SplitSubdevice(std::wstring_view name)
{
    constexpr std::wstring_view separator = L"subdevices\\";

    const std::wstring lower = ToLower(name);
    const std::size_t position = lower.find(separator);
    if (position == std::wstring::npos)
    {
        return std::nullopt;
    }
    const std::size_t deviceLength = position == 0 ? 0 : position - 1; // the backslash ahead of it
    return SubdeviceName{lower.substr(0, deviceLength), lower.substr(position + separator.size()),
                         std::wstring(name.substr(0, deviceLength))};
}

} // namespace norvepa
