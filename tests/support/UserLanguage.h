#pragma once

// The user's locale as a module is told it, for as long as the object lives: Wine's own is English, which is
// also what texts fall back to. One object at a time; the module has to stay loaded meanwhile.

#include "support/ImportHook.h"

#include <windows.h>

#include <string>

namespace norvepa::test
{

class UserLanguage
{
public:
    // A locale's name, such as "de-DE"; without one the system can't tell it.
    UserLanguage(const std::wstring& locale, HMODULE module);
    UserLanguage(const UserLanguage&) = delete;
    UserLanguage& operator=(const UserLanguage&) = delete;
    ~UserLanguage();

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
