#pragma once

// A backup in its file.

#include "BackupArchive.h"
#include "OwnedFile.h"

#include <cstddef>
#include <string>

namespace norvctl
{

// All below a data root as it is now; nothing where there is no such folder (see StoreSnapshot.h).
[[nodiscard]] StoreBackup BackupOf(const std::wstring& root);

// Throws with the file and what is wrong, unless it is a whole backup.
[[nodiscard]] StoreBackup ReadBackupFile(const std::wstring& file);

// The file is there whole, read again and compared, or not at all, and then the older one is as it was. Each
// part of the work shows how far it has come. Returns its size in bytes; throws with what is wrong.
std::size_t WriteBackupFile(const std::wstring& file, const StoreBackup& backup, Existing existing);

} // namespace norvctl
