#pragma once

// What the verbs of log devices share.

#include "Reads.h"
#include "Report.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

inline constexpr wchar_t LogDevicesWord[] = L"LogDevices"; // the folder word of their changes

// What the name of a temporary log device begins with, three digits behind it. Changes of a name that holds
// it are announced to nobody.
inline constexpr std::wstring_view TemporaryPrefix = L"PGSP_TEMP_LOG_DEVICE____";

// A log device, or one of its parameters, for a message.
[[nodiscard]] std::string DeviceSubject(const std::string& device, const std::string& parameter);

// The file that a change of this name changes: a subdevice stands in that of its device.
[[nodiscard]] std::wstring FileOfDevice(const std::string& device);

// True for DEVICE\subdevices\SUB.
[[nodiscard]] bool IsSubdevice(const std::string& device);

[[nodiscard]] bool IsDeviceThere(const std::string& device);

// Throws unless it is there and may be asked for.
void RequireDevice(const std::string& device);

// One value, or the default of its catalogue.
[[nodiscard]] ReadResult ReadDevice(const std::string& device, const std::string& parameter);

// All values, in the order of its file.
[[nodiscard]] std::vector<NameAndValue> ValuesOfDevice(const std::string& device);

// The temporary log devices of all users, in the order of their numbers.
[[nodiscard]] std::vector<std::string> TemporaryDevices();

// What has been done to a value of a log device.
void AnswerDone(const Report& report, const char* what, const std::string& device,
                const std::string& parameter);

} // namespace norvctl
