#include "Device.h"

#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <cwctype>
#include <fmt/format.h>

namespace norvctl
{

std::string DeviceSubject(const std::string& device, const std::string& parameter)
{
    return parameter.empty() ? device : fmt::format("{}, {}", device, parameter);
}

std::wstring FileOfDevice(const std::string& device)
{
    const std::wstring name = ToWide(device);
    std::wstring lower = name;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](wchar_t character) { return static_cast<wchar_t>(std::towlower(character)); });
    return name.substr(0, lower.find(L"\\subdevices\\"));
}

bool IsSubdevice(const std::string& device)
{
    return FileOfDevice(device).size() != ToWide(device).size();
}

bool IsDeviceThere(const std::string& device)
{
    return LogDeviceExistBL(ToWide(device).c_str(), 0) == PGSP_OK;
}

void RequireDevice(const std::string& device)
{
    Require(LogDeviceExistBL(ToWide(device).c_str(), 0), device);
}

ReadResult ReadDevice(const std::string& device, const std::string& parameter)
{
    const std::wstring name = ToWide(device);
    const std::wstring asked = ToWide(parameter);
    return ReadText([&](wchar_t* value, uint32_t* length) {
        return LogDeviceGetValueBL(name.c_str(), asked.c_str(), value, length);
    });
}

std::vector<NameAndValue> ValuesOfDevice(const std::string& device)
{
    const std::wstring name = ToWide(device);
    return EnumeratePairs(device, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                      wchar_t* value, uint32_t* valueLength) {
        return LogDeviceGetEnumValueBL(name.c_str(), index, parameter, parameterLength, value, valueLength);
    });
}

std::vector<std::string> TemporaryDevices()
{
    std::vector<std::string> names = ReadTexts("the log devices", [](wchar_t* list, uint32_t* length) {
        return PGSP_GetLogDeviceListBL(list, length);
    });
    const std::string prefix = ToUtf8(TemporaryPrefix);
    std::erase_if(names, [&](const std::string& name) { return !name.starts_with(prefix); });
    std::sort(names.begin(), names.end());
    return names;
}

void AnswerDone(const Report& report, const char* what, const std::string& device,
                const std::string& parameter)
{
    report.Answer(fmt::format("{} {}", what, DeviceSubject(device, parameter)),
                  {{"done", what}, {"device", device}, {"parameter", parameter}});
}

} // namespace norvctl
