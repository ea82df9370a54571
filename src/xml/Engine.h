#pragma once

// What COM and the DOM engine answer, looked at for the one failure that must not pass for another: an engine
// that has run out of memory has not said that there is nothing, or that a file isn't well-formed.

#include <windows.h>

#include <new>

namespace norvepa
{

// The status as it came, but std::bad_alloc for want of memory, in the engine's own code or in the system's,
// which a load or a save passes on. Every call to the engine goes through here, also one whose success
// nobody asks about.
inline HRESULT Checked(HRESULT status)
{
    if (status == E_OUTOFMEMORY || status == HRESULT_FROM_WIN32(ERROR_NOT_ENOUGH_MEMORY))
    {
        throw std::bad_alloc();
    }
    return status;
}

} // namespace norvepa
