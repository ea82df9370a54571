#pragma once

// The memory in which exceptions live, and what each thread has thrown and caught: ours, in place of the
// run-time library's. That one leaves handles, blocks and an index of thread-local storage behind with each
// thread that has thrown, in a process that goes on without the module. And its reserve is guarded by a lock
// that has to be made first, which takes memory: a throw for want of memory would end in itself, until the
// stack is used up.
//
// With another run-time library than GNU's this does nothing: what that leaves behind is its own affair.
//
// Callers may rely on: a throw needs no memory of the heap, as long as the exception is small and not more
// than 64 are under way for want of it.

namespace norvepa
{

// When the module comes, ahead of all that may throw.
void MakeExceptionMemory() noexcept;

// When it goes: the last of all. No exception may be thrown or in flight from then on.
void FreeExceptionMemory() noexcept;

} // namespace norvepa
