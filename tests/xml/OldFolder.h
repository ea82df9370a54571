#pragma once

// Folders of files that haven't been changed for so long that the library keeps what it reads of them. All
// that a program needs are made at once, with one wait.

#include <string>

namespace norvepa::test
{

// A folder that nobody else has got. It holds "a.xml", "b.xml" and "c.xml", each of one element: "old-a" and
// so on.
[[nodiscard]] std::wstring TakeOldFolder();

} // namespace norvepa::test
