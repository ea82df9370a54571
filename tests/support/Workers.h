#pragma once

// The threads that this program starts by CreateThread while the object lives: counted, and waited for. For
// programs that link the library's objects: there these are its workers, and no others. One at a time.

#include "support/ImportHook.h"

#include <windows.h>

#include <cstddef>

namespace norvepa::test
{

class Workers
{
public:
    Workers();
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers(); // waits for those still about

    [[nodiscard]] std::size_t count() const;

    // Until all that have been started have ended. Throws when that takes more than a minute.
    void Await() const;

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
