#pragma once

// What the exports of log names share: where a log name's file lies, the words in it, and the reads that
// they do for themselves.

#include "frame/Result.h"
#include "frame/StoreLocations.h"

#include <string>
#include <string_view>

namespace norvepa
{

// All values of a log name stand in this one section.
inline constexpr wchar_t ParametersSection[] = L"Parameters";

// The folder word of notifications.
inline constexpr wchar_t LogNamesWord[] = L"LogNames";

[[nodiscard]] inline std::wstring LogNameFolder(std::wstring_view dataFolder)
{
    return MakeStoreFolder(dataFolder, L"data", L"LogNames");
}

// The store path of a log name's file. An empty name gives the folder itself.
[[nodiscard]] inline std::wstring LogNameFile(std::wstring_view dataFolder, std::wstring_view logName)
{
    return JoinPath(LogNameFolder(dataFolder), logName);
}

// One value of one log name, with the frame's checks, traces and codes; both names are required.
[[nodiscard]] Result PGSP_LogNameGetValue(const wchar_t* LogName, const wchar_t* Parameter,
                                          std::wstring* Value);

// Who holds the lock of a log name: PGSP_OK nobody, PGSP_LOCKED_BY_THIS_THREAD, PGSP_LOCKED_BY_OTHER_THREAD.
// PGSP_ERR_INVALID_PARAMETERS, PGSP_ERR_FOLDER_NOT_FOUND. The lock word is the callers' own business.
[[nodiscard]] Result PGSP_LogDeviceLink_bIsLockedBL(const wchar_t* LogName);

} // namespace norvepa
