#pragma once

// What makes a shell ask norvctl for the words that it may complete.

#include <string_view>

namespace norvctl
{

extern const std::string_view BashScript;
extern const std::string_view PowerShellScript;

} // namespace norvctl
