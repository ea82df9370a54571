#pragma once

// NorvepaBl64x.dll as a caller has it: loaded from beside the test program, its functions found by name.
//
// The registry has to be redirected and filled before one of these is made: the load reads the trace
// settings. The library is unloaded with the object.

#include "norvepa.h"

#include <windows.h>

#include <string>

namespace norvepa::test
{

[[nodiscard]] std::wstring LibraryPath();

class LoadedLibrary
{
public:
    LoadedLibrary(); // throws when it can't be loaded
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary();

    // What Find answers: becomes whatever function pointer it is put into.
    class Address
    {
    public:
        explicit Address(FARPROC address) : m_address(address) {}

        template <typename Function>
        operator Function*() const
        {
            return reinterpret_cast<Function*>(reinterpret_cast<void*>(m_address));
        }

    private:
        FARPROC m_address;
    };

    [[nodiscard]] Address Find(const char* name) const; // throws when there is no such export
    [[nodiscard]] HMODULE module() const { return m_module; }

private:
    HMODULE m_module;
};

// The exports with the types that the public header gives them: one line for each.
struct Exports : LoadedLibrary
{
    decltype(&::LogNameCreateBL) LogNameCreateBL = Find("LogNameCreateBL");
    decltype(&::LogNameDelValueBL) LogNameDelValueBL = Find("LogNameDelValueBL");
    decltype(&::LogNameDeleteBL) LogNameDeleteBL = Find("LogNameDeleteBL");
    decltype(&::LogNameExistBL) LogNameExistBL = Find("LogNameExistBL");
    decltype(&::LogNameGetEnumBL) LogNameGetEnumBL = Find("LogNameGetEnumBL");
    decltype(&::LogNameGetLogDeviceBL) LogNameGetLogDeviceBL = Find("LogNameGetLogDeviceBL");
    decltype(&::LogNameGetValueBL) LogNameGetValueBL = Find("LogNameGetValueBL");
    decltype(&::LogNameSetValueBL) LogNameSetValueBL = Find("LogNameSetValueBL");

    decltype(&::RegisterNotification) RegisterNotification = Find("RegisterNotification");
    decltype(&::UnRegisterNotification) UnRegisterNotification = Find("UnRegisterNotification");

    decltype(&::NorvepaBl64x_deinit) NorvepaBl64x_deinit = Find("NorvepaBl64x_deinit");
};

} // namespace norvepa::test
