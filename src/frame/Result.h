#pragma once

// The result codes as the library's own operations return them: one table, in the public header.

#include "norvepa.h"

#include <windows.h>

namespace norvepa
{

using Result = ::NorvepaResult;

// What a call answers when memory ran out: the system's number, outside of the table.
inline constexpr Result OutOfMemory{ERROR_OUTOFMEMORY};

} // namespace norvepa
