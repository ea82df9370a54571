#pragma once

// A file of the user's that is written whole or not at all.

#include <string>
#include <string_view>

namespace norvctl
{

// Makes the file, or replaces the one that is there. Whoever opens it meanwhile sees the old one, and so it
// stays when something fails, which is thrown.
void SaveWholeFile(const std::wstring& path, std::string_view bytes);

} // namespace norvctl
