#pragma once

// What sets a temporary log device apart: its name, and nothing else. Deletions take a name for one by less
// than what it is made of; enumerations and notifications by all of it, the former at its beginning, the
// latter anywhere.

#include "frame/Text.h"

#include <string_view>

namespace norvepa
{

// What the numbers of temporary log devices stand behind.
inline constexpr wchar_t TemporaryPrefix[] = L"PGSP_TEMP_LOG_DEVICE____";

// True when a name holds the word anywhere, in this case.
[[nodiscard]] inline bool IsTemporaryToDelete(std::wstring_view logDevice) noexcept
{
    return Holds(logDevice, L"PGSP_TEMP_LOG_DEVICE");
}

} // namespace norvepa
