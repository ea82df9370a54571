#pragma once

// The style and the script of the page: page.css and page.js, which the program carries as resources.

#include <string_view>

namespace norvctl::report
{

[[nodiscard]] std::string_view PageStyle();
[[nodiscard]] std::string_view PageScript();

} // namespace norvctl::report
