#pragma once

#include <string>

namespace norvctl
{

// What the version resource of the library says that this process has loaded: "1.2.3".
[[nodiscard]] std::string LibraryVersion();

} // namespace norvctl
