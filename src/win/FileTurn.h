#pragma once

// Whose turn it is at a file, among the threads of this process: many readers' or one writer's. Without turns
// readers that come one behind the other would keep a writer out for good; other processes are kept apart by
// the share modes of an open file alone.
//
// Callers must: hold a turn for as long as the file is open, and never two at once: of two files each may
// have the other's place.

#include "win/Mutex.h"

#include <cstdint>
#include <string_view>

namespace norvepa::win
{

// A file, told apart from others well enough for this. It is never 0.
using FileNumber = std::uint32_t;
[[nodiscard]] FileNumber NumberOfFile(std::wstring_view path) noexcept;

// For std::shared_lock or std::lock_guard. A few files share one.
[[nodiscard]] SharedMutex& TurnAt(FileNumber file) noexcept;

} // namespace norvepa::win
