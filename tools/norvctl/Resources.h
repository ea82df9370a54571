#pragma once

// Texts that the program carries as resources: files of this folder, which are best written as what they are.

#include <string_view>

namespace norvctl
{

// The style and the script of a report: report/page.css, report/page.js.
[[nodiscard]] std::string_view PageStyle();
[[nodiscard]] std::string_view PageScript();

// What the answers of --json look like, a definition a command: norvctl.schema.json.
[[nodiscard]] std::string_view AnswerSchema();

} // namespace norvctl
