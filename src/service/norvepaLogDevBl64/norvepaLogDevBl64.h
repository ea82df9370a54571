#pragma once

// What the exports of log devices share: where a log device's file lies, what its catalogue says, the check
// of a value, and the reads that the service does for itself.
//
// The reads look alike and differ on purpose in where they look, in whether a default stands in, and in how
// they tell a failure; none stands for another.

#include "frame/ExportFrame.h"
#include "frame/StoreLocations.h"
#include "service/norvepaLogDevBl64/DeviceCatalogue.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvepa
{

// The parameter that is meant when a caller names none. That of log names is another.
inline constexpr wchar_t DefaultDeviceParameter[] = L"default";

// The folder word of notifications.
inline constexpr wchar_t LogDevicesWord[] = L"LogDevices";

// Where a parameter is looked for when neither the caller nor the catalogue names its section.
inline constexpr std::array<const wchar_t*, 5> SearchedSections{L"DeviceHeader", L"LocalSettings",
                                                                L"NetworkSettings", L"Bindings", L"Ndi"};

[[nodiscard]] std::wstring LogDeviceFolder(std::wstring_view dataFolder);

// The store path of a log device's file. An empty name gives the folder itself; without a data folder the
// path is relative, which not every export tells by a code.
[[nodiscard]] std::wstring LogDeviceFile(std::wstring_view dataFolder, std::wstring_view logDevice);

// Attributes of the root element, which are never written as parameters.
[[nodiscard]] bool IsRootAttribute(std::wstring_view parameter) noexcept;

// A name of the form device\subdevices\sub.
struct SubdeviceName
{
    std::wstring device;    // in small letters
    std::wstring subdevice; // in small letters
    std::wstring asGiven;   // the device in the caller's own
};

// None when the name is that of a device.
[[nodiscard]] std::optional<SubdeviceName> SplitSubdevice(std::wstring_view name);

// One word of what the board, or else the protocol, of a log device says about a parameter. PGSP_OK,
// PGSP_ERR_INVALID_PARAMETERS, PGSP_ERR_PARAM_NOT_FOUND, PGSP_ERR_FOLDER_NOT_FOUND without a data folder.
// Without a program folder it answers PGSP_OK and leaves `value` alone.
[[nodiscard]] Result LogDeviceGetConstraint(DeviceCatalogue& catalogue, const wchar_t* Parameter,
                                            const wchar_t* Constraint, std::wstring* value);
[[nodiscard]] Result LogDeviceGetConstraint(const wchar_t* LogDevice, const wchar_t* Parameter,
                                            const wchar_t* Constraint, std::wstring* value);

// The same where a failure counts as an empty word.
[[nodiscard]] std::wstring ConstraintOrEmpty(DeviceCatalogue& catalogue, const wchar_t* parameter,
                                             const wchar_t* constraint);

// Checks a value against type, bounds and step, and replaces "min", "max" and "default" by what they stand
// for: what `value` holds afterwards is what is to be stored. PGSP_OK also for a parameter that the catalogue
// doesn't know; PGSP_ERR_INVALID_PARAMETERS, PGSP_NOT_IN_LIST, PGSP_NOT_A_BOOL, PGSP_SET_VAL_LESS_THAN_MIN,
// PGSP_SET_VAL_BIGGER_THAN_MAX, PGSP_NOT_IN_STEP, PGSP_ERR_FOLDER_NOT_FOUND.
[[nodiscard]] Result LogDeviceCheckValue(DeviceCatalogue& catalogue, const wchar_t* Parameter,
                                         std::wstring* value);
[[nodiscard]] Result LogDeviceCheckValue(const wchar_t* LogDevice, const wchar_t* Parameter,
                                         std::wstring* value);

// Checks a value of `baudrate` or `l4_timeout` against the list of allowed ones; any other parameter passes.
[[nodiscard]] Result LogDeviceCheckConstraintList(DeviceCatalogue& catalogue, const wchar_t* Parameter,
                                                  const wchar_t* ValueToCheck);
[[nodiscard]] Result LogDeviceCheckConstraintList(const wchar_t* LogDevice, const wchar_t* Parameter,
                                                  const wchar_t* ValueToCheck);

// The number that a text stands for: the digits that it begins with, of a base from 2 to 35, or else 10;
// signed for the type "int". What doesn't fit into 32 bits ends at their limits.
[[nodiscard]] double ConstraintTextToNumber(const std::wstring& text, std::wstring_view type,
                                            const std::wstring& base);

// A root attribute, or else a parameter where the catalogue says it is, or else its default there; else
// PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND. Without a data folder PGSP_OK, and `value` is left alone.
[[nodiscard]] Result LogDeviceGetValue(const wchar_t* LogDevice, const wchar_t* Parameter,
                                       std::wstring* value);

// A root attribute, or else a parameter of one of five sections, of which the last is not `Ndi`. The
// catalogue isn't asked.
[[nodiscard]] Result PGSP_LogDeviceGetValue(const wchar_t* LogDevice, const wchar_t* Parameter,
                                            std::wstring* value);
[[nodiscard]] Result PGSP_LogDeviceGetValue(const std::wstring& dataFolder, const wchar_t* LogDevice,
                                            const wchar_t* Parameter, std::wstring* value);

// A parameter of the section `Ndi`, without a word in the trace.
[[nodiscard]] Result LogDeviceGetNdiValue(const wchar_t* LogDevice, const wchar_t* Parameter,
                                          std::wstring* value);
[[nodiscard]] Result LogDeviceGetNdiValue(const std::wstring& dataFolder, const wchar_t* LogDevice,
                                          const wchar_t* Parameter, std::wstring* value);

// A parameter of a subdevice, traced for the export that reads it, also when it can't be read.
[[nodiscard]] Result ReadSubdevice(const ExportFrame& frame, std::wstring_view dataFolder,
                                   const SubdeviceName& name, const wchar_t* parameter, std::wstring& value);

} // namespace norvepa
