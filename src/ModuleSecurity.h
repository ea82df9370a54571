#pragma once

// Who may use the named objects of the trace: authenticated users, whichever of them has made them.
//
// Callers may rely on: nothing here fails. What can't be made is told to the debugger, and the objects then
// get what could be. Callers must: keep it for as long as the trace has its attributes.

#include <windows.h>

namespace norvepa
{

class ModuleSecurity
{
public:
    void Make() noexcept;
    void Free() noexcept; // once the trace has ended

    [[nodiscard]] SECURITY_ATTRIBUTES attributes() noexcept;

private:
    SECURITY_DESCRIPTOR m_descriptor = {};
    PSID m_authenticatedUsers = nullptr;
    PACL m_list = nullptr;
};

} // namespace norvepa
