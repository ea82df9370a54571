#pragma once

// Ctrl-C, and whatever else is to end the process from outside, as something to be asked for: for work that
// must not be left half done.

#include <windows.h>

namespace norvctl
{

// For as long as it lives such a signal doesn't end the process. One for a process at a time.
class Interruption
{
public:
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

    [[nodiscard]] bool HasCome() const;
    [[nodiscard]] HANDLE event() const; // set when it has come

    // Throws when it has come.
    void Require() const;
};

} // namespace norvctl
