#pragma once

// The listings of folders, kept until the folder may have changed, and the watch that tells.
//
// Two folders change while a process runs, also through other processes: those of the log devices and of
// the log names. They are watched by the system and polled at every query; no thread waits. The listing of
// any other folder stays as it was first read until the process ends.
//
// Callers may rely on: without a working watch nothing cached is answered. Callers must not: hold the index
// of log devices across a poll; it is to be asked for anew (see DeviceIdIndex).

#include "frame/Result.h"

#include <memory>
#include <string>
#include <vector>

namespace norvepa
{

// File names of a folder, unescaped and without extension, in the folder's order.
using DirectoryListing = std::vector<std::wstring>;

// -1 where there is no code of the table: the watch failed, or the folder can't be read.
inline constexpr Result NoListing{-1};

// Sets up the watch of the two folders below the data folder, unless it is there. PGSP_OK or NoListing.
[[nodiscard]] Result initWatchDirectories(const std::wstring& dataFolder);

[[nodiscard]] bool IsWatching() noexcept;

// Ends the watch. The next query sets it up again.
void deinitWatchDirectories();

// Polls the watch and drops what has gone stale. PGSP_OK or NoListing, which has dropped everything.
Result getDirectoryChange(const std::wstring& dataFolder);

// The listing of a folder, shared with the cache and never changed. PGSP_OK; PGSP_ERR_INVALID_PARAMETERS
// for an empty path; NoListing, with an empty listing, for a folder that holds no such file or can't be read.
[[nodiscard]] Result getDirectoryContent(const std::wstring& folderPath, const std::wstring& dataFolder,
                                         std::shared_ptr<const DirectoryListing>& listing);

// When the module goes: the watch, and all that it keeps listings and the index of identities for.
void FreeDirectoryCache() noexcept;

} // namespace norvepa
