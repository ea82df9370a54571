#include "support/NamedEvent.h"

#include <sddl.h>

#include <atomic>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr DWORD Patience = 60'000; // milliseconds

HANDLE Make(const std::wstring& name, SECURITY_ATTRIBUTES* security)
{
    const HANDLE handle = CreateEventW(security, FALSE, FALSE, name.c_str());
    if (handle == nullptr)
    {
        throw std::runtime_error("the event can't be made: " + std::to_string(GetLastError()));
    }
    return handle;
}

} // namespace

std::wstring FreshEventName(const std::wstring& prefix)
{
    static std::atomic<int> count = 0;
    return prefix + L"norvepa-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
           std::to_wstring(GetTickCount64()) + L"-" + std::to_wstring(++count);
}

NamedEvent::NamedEvent() : NamedEvent(FreshEventName()) {}

NamedEvent::NamedEvent(const std::wstring& name) : m_name(name), m_handle(Make(name, nullptr)) {}

NamedEvent::NamedEvent(const std::wstring& name, const std::wstring& security) : m_name(name)
{
    SECURITY_ATTRIBUTES attributes{sizeof attributes, nullptr, FALSE};
    if (ConvertStringSecurityDescriptorToSecurityDescriptorW(
            security.c_str(), SDDL_REVISION_1, &attributes.lpSecurityDescriptor, nullptr) == FALSE)
    {
        throw std::runtime_error("no security descriptor");
    }
    m_handle = Make(name, &attributes);
    LocalFree(attributes.lpSecurityDescriptor);
}

NamedEvent::~NamedEvent()
{
    Close();
}

bool NamedEvent::Await() const
{
    return WaitForSingleObject(m_handle, Patience) == WAIT_OBJECT_0;
}

bool NamedEvent::IsSet() const
{
    return WaitForSingleObject(m_handle, 0) == WAIT_OBJECT_0;
}

void NamedEvent::Close()
{
    if (m_handle != nullptr)
    {
        CloseHandle(m_handle);
        m_handle = nullptr;
    }
}

} // namespace norvepa::test
