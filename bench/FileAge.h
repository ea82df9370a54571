#pragma once

// The age of a file, which decides whether the library may keep what it has read of it.

#include <string>

namespace norvepa::bench
{

// Waits until the file's last change lies back so far that a later one is told from it for certain. Throws
// when the file can't be opened.
void WaitUntilOld(const std::wstring& file);

} // namespace norvepa::bench
