#pragma once

// A backup: a cabinet, which the system's explorer opens, with a seal behind it.
//
// Its first member, `norvctl-backup.json`, lists all folders, and all files with size, SHA-256, write time
// and attributes; the files follow in the order of that list, under their names. The seal is the SHA-256 of
// all bytes ahead of it and a word. So damage of any kind is known ahead of all else; what somebody has made
// on purpose is known by the list.

#include "StoreSnapshot.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace norvctl
{

struct StoreBackup
{
    std::uint64_t made; // FILETIME
    StoreSnapshot store;
};

// `tell` is told how many files are packed, and which one is next.
[[nodiscard]] std::string PackBackup(
    const StoreBackup& backup, const std::function<void(std::size_t done, const std::string& name)>& tell);

// Takes any bytes. Throws with what is wrong unless they are a whole backup: every file as the list says,
// every name one below the root.
[[nodiscard]] StoreBackup UnpackBackup(std::string_view bytes);

} // namespace norvctl
