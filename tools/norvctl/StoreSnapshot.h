#pragma once

// All that lies below a data root, as it was at one look.

#include "StoreNames.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace norvctl
{

struct KeptFile
{
    std::uint32_t attributes; // of KeptAttributes
    std::uint64_t writeTime;  // FILETIME: 100 ns since 1601
    std::string bytes;

    bool operator==(const KeptFile&) const = default;
};

// What users set. Whether a file is to be archived is a matter of other programs.
extern const std::uint32_t KeptAttributes;

// By the names below the root. A folder stands ahead of what lies in it.
struct StoreSnapshot
{
    std::map<std::wstring, std::uint32_t, NameOrder> folders; // and their attributes
    std::map<std::wstring, KeptFile, NameOrder> files;

    [[nodiscard]] std::size_t Bytes() const; // of all files
};

// Each file whole, also while others change it: one that is in use is waited for two seconds. Files that go
// meanwhile and left-overs of files in the making aren't in it. Throws when a file can't be read, naming it,
// and when there is a link to elsewhere or a name that a backup can't keep. Shows how far it has come.
[[nodiscard]] StoreSnapshot ReadSnapshot(const std::wstring& root);

} // namespace norvctl
