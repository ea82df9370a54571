#pragma once

// What follows from a choice: the two parameters that decide others, and how such a choice is made for a log
// device.

#include "frame/ExportFrame.h"

#include <string>
#include <string_view>

namespace norvepa
{

// Known without regard to case.
inline constexpr wchar_t PGSP_PARAM_BAUDRATE[] = L"baudrate";
inline constexpr wchar_t PGSP_PARAM_PROFILES[] = L"busparam";

// The value of `PGSP_PARAM_PROFILES` that is the user's own profile.
inline constexpr wchar_t PGSP_PARAM_PROFILES_USER[] = L"3";

// The exit when a profile isn't there or couldn't be written whole: PGSP_PROFILE_NO_VALUE.
[[nodiscard]] Result ReturnNoValue(const ExportFrame& frame, TracePlace place = TracePlace::current());

// Sets a parameter of a log device and applies the profile that follows from the new value; when there is
// none, or it can't be written whole, the parameter gets its old value back, but for a log device whose
// protocol can't be read. What the profile wrote until then stays. Each value is checked and announced like a
// caller's own.
//
// PGSP_OK, PGSP_ERR_INVALID_PARAMETERS, PGSP_ERR_PARAM_NOT_FOUND for a parameter that can't be read, or holds
// 256 characters or more; PGSP_PROFILE_NO_VALUE for all else, and OutOfMemory instead of an exception.
[[nodiscard]] Result PGSP_LogDeviceEnumSetProfileBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                                    const wchar_t* Value) noexcept;

// The key under which a protocol's file lists the values of a parameter. A protocol with "L2" in its name
// lists baud rates below each profile, so a log device of such a protocol has to have a profile, whatever the
// parameter: the codes of PGSP_LogDeviceGetValue; `key` is untouched then.
[[nodiscard]] Result MakeProtocolKey(std::wstring_view protocol, const wchar_t* logDevice,
                                     const wchar_t* parameter, std::wstring& key);

} // namespace norvepa
