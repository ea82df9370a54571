#pragma once

// One imported function of this program, led to another for as long as the object lives: how a test
// meets what a real system does only when it is broken, and sees what is told to places that can't be
// read back.

#include <windows.h>

namespace norvepa::test
{

class ImportHook
{
public:
    // `replacement` must have the function's own type. Throws when the program doesn't import it.
    template <typename Function>
    ImportHook(const char* function, Function* replacement)
        : ImportHook(function, reinterpret_cast<void*>(replacement))
    {
    }
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;
    ~ImportHook();

private:
    ImportHook(const char* function, void* replacement);

    void** m_slot;
    void* m_original;
};

} // namespace norvepa::test
