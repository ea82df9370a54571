#pragma once

// The threads that a module starts by CreateThread while the object lives: counted, and waited for. The
// library's are its workers, and no others; in programs that link its objects they are the program's. One
// object at a time, and gone before the library is.

#include "support/ImportHook.h"

#include <windows.h>

#include <cstddef>

namespace norvepa::test
{

class Workers
{
public:
    explicit Workers(HMODULE module = GetModuleHandleW(nullptr));
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers(); // waits for those still about

    [[nodiscard]] std::size_t count() const;

    // Until all that have been started have ended. Throws when that takes more than a minute. Asks for no
    // memory.
    void Await() const;

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
