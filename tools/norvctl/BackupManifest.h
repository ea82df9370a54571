#pragma once

// The list of what a backup holds, as JSON.

#include "BackupArchive.h"
#include "Sha256.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

inline constexpr char ManifestName[] = "norvctl-backup.json";

struct ListedFile
{
    std::wstring name;
    std::uint32_t attributes;
    std::uint64_t writeTime;
    std::size_t size;
    std::string sha256; // in hexadecimal digits
};

struct Manifest
{
    std::uint64_t made;
    std::map<std::wstring, std::uint32_t, NameOrder> folders;
    std::vector<ListedFile> files; // in the order of the archive
};

[[nodiscard]] std::string Sha256Digits(std::string_view bytes);

[[nodiscard]] std::string WriteManifest(const StoreBackup& backup);

// Takes any text. Throws with what is wrong; every name leads below the root, no two are the same, and every
// one lies in a folder of the list.
[[nodiscard]] Manifest ReadManifest(std::string_view text);

} // namespace norvctl
