#pragma once

// One imported function of a module, this program or a library it has loaded, led to another for as long as
// the object lives: how a test meets what a real system does only when it is broken, and sees what is told to
// places that can't be read back. Callers must keep the library loaded meanwhile.

#include <windows.h>

namespace norvepa::test
{

// Puts a function in the place of another, in memory that is otherwise only read.
void StoreFunction(void** slot, void* function);

class ImportHook
{
public:
    // `replacement` must have the function's own type. Throws when the module doesn't import it.
    template <typename Function>
    ImportHook(const char* function, Function* replacement, HMODULE module = GetModuleHandleW(nullptr))
        : ImportHook(function, reinterpret_cast<void*>(replacement), module)
    {
    }
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;
    ~ImportHook();

private:
    ImportHook(const char* function, void* replacement, HMODULE module);

    void** m_slot;
    void* m_original;
};

} // namespace norvepa::test
