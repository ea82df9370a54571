#pragma once

// The memory that the run-time library linked into the module lays by for exceptions thrown when there is none.

namespace norvepa
{

// Gives it back: the run-time library itself leaves some 70 KB behind each time the module is unloaded. Called
// last; no exception may be thrown or in flight from then on.
void FreeExceptionReserve() noexcept;

} // namespace norvepa
