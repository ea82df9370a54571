#pragma once

// UTF-16 of the library, UTF-8 of the command line and of all output.

#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

[[nodiscard]] std::string ToUtf8(std::wstring_view text);
[[nodiscard]] std::wstring ToWide(std::string_view utf8);
[[nodiscard]] bool IsUtf8(std::string_view bytes);

// As the library compares names.
[[nodiscard]] bool EqualNoCase(std::wstring_view left, std::wstring_view right);
[[nodiscard]] std::wstring ToLower(std::wstring_view text);

// The process's arguments without its name, last one first: the order that the parser takes them in.
[[nodiscard]] std::vector<std::string> CommandLineReversed();

} // namespace norvctl
