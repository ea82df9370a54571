#pragma once

// What is done to a file's bytes ahead of an engine's pass, since there is an engine that some files end the
// process of. An engine without those faults says the same of both.

#include <string>
#include <string_view>

namespace norvepa
{

// Bytes to be read instead of those; empty for nearly all files, which do no harm. A document that ends with
// its declaration gets a blank, an encoding's mark that is all but alone goes, and UTF-16 that is longer than
// an engine reads at once becomes UTF-8, which its declaration no longer denies.
[[nodiscard]] std::string HarmlessBytes(std::string_view bytes);

} // namespace norvepa
