#pragma once

// A named event as a registrant has it: made, waited for, closed. It resets itself when a wait has seen it.

#include <windows.h>

#include <string>

namespace norvepa::test
{

// A name that no other test and no other run uses, with `prefix` ("Global\\", say) in front.
[[nodiscard]] std::wstring FreshEventName(const std::wstring& prefix = L"");

class NamedEvent
{
public:
    NamedEvent();                                  // of a fresh name
    explicit NamedEvent(const std::wstring& name); // throws when it can't be made
    // Guarded by a security descriptor in its text form.
    NamedEvent(const std::wstring& name, const std::wstring& security);
    NamedEvent(const NamedEvent&) = delete;
    NamedEvent& operator=(const NamedEvent&) = delete;
    ~NamedEvent();

    [[nodiscard]] const std::wstring& name() const { return m_name; }
    [[nodiscard]] const wchar_t* c_str() const { return m_name.c_str(); }

    [[nodiscard]] bool Await() const; // until it is set; false when that takes more than a minute
    [[nodiscard]] bool IsSet() const; // now
    void Close();

private:
    std::wstring m_name;
    HANDLE m_handle = nullptr;
};

} // namespace norvepa::test
