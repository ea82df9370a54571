#pragma once

// The steps by which files below a data root are read and changed, each whole or not at all. A file in use is
// waited for two seconds. What fails is thrown with the path.

#include "StoreSnapshot.h"

#include <optional>
#include <string>
#include <vector>

namespace norvctl
{

// A path of any length and from anywhere.
[[nodiscard]] std::wstring AnyLengthPath(const std::wstring& path);
[[nodiscard]] std::wstring PathBelow(const std::wstring& root, std::wstring_view name);

// Where a file is made: in the same folder, under a name that no listing of the library shows and no backup
// keeps.
[[nodiscard]] std::wstring PlaceBeside(const std::wstring& path);

struct FolderEntry
{
    std::wstring name; // its last part
    std::uint32_t attributes;
    bool isLink;
};

// What lies in a folder; none when it isn't there.
[[nodiscard]] std::vector<FolderEntry> ListFolder(const std::wstring& path);

[[nodiscard]] std::optional<KeptFile> ReadKeptFile(const std::wstring& path); // none when it isn't there

void MakeFolder(const std::wstring& path, std::uint32_t attributes);
void RemoveFolder(const std::wstring& path); // with the left-overs in it
void RemoveFile(const std::wstring& path);   // which must be there

// In place of what may be there, by one renaming: who looks sees the old file or the new.
void PutFile(const std::wstring& path, const KeptFile& file);

} // namespace norvctl
