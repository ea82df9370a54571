#include "trace/TraceCounter.h"

#include "trace/TraceDebugger.h"
#include "trace/TraceStatement.h"
#include "win/Handle.h"
#include "win/Lasting.h"

#include <windows.h>
#include <aclapi.h>

#include <array>
#include <memory>

namespace norvepa
{

namespace
{

constexpr char CounterName[] = "Global\\NorvTRACE_SECTION";
constexpr DWORD CounterBytes = sizeof(std::uint32_t);

// The name goes with the last handle, even while a view stands: both are kept.
struct Counter
{
    win::Handle mapping;
    win::MappedView view;
};

constinit win::Lasting<Counter> counter;

struct FreeLocal
{
    void operator()(void* block) const noexcept { LocalFree(block); }
};

// Lets authenticated users, and nobody else, map the counter for writing.
class CounterSecurity
{
public:
    CounterSecurity() noexcept
    {
        DWORD sidSize = static_cast<DWORD>(m_sid.size());
        if (CreateWellKnownSid(WinAuthenticatedUserSid, nullptr, m_sid.data(), &sidSize) == 0)
        {
            return;
        }

        EXPLICIT_ACCESSW access{};
        access.grfAccessPermissions = FILE_MAP_WRITE;
        access.grfAccessMode = SET_ACCESS;
        access.grfInheritance = NO_INHERITANCE;
        access.Trustee.TrusteeForm = TRUSTEE_IS_SID;
        access.Trustee.TrusteeType = TRUSTEE_IS_WELL_KNOWN_GROUP;
        access.Trustee.ptstrName = reinterpret_cast<wchar_t*>(m_sid.data());

        ACL* acl = nullptr;
        const DWORD error = SetEntriesInAclW(1, &access, nullptr, &acl);
        m_acl.reset(acl);
        if (error != ERROR_SUCCESS)
        {
            SetLastError(error);
            return;
        }

        m_valid = InitializeSecurityDescriptor(&m_descriptor, SECURITY_DESCRIPTOR_REVISION) != 0 &&
                  SetSecurityDescriptorDacl(&m_descriptor, TRUE, m_acl.get(), FALSE) != 0;
    }

    [[nodiscard]] bool valid() const noexcept { return m_valid; }
    [[nodiscard]] SECURITY_ATTRIBUTES attributes() noexcept
    {
        return {sizeof(SECURITY_ATTRIBUTES), &m_descriptor, FALSE};
    }

private:
    std::array<BYTE, SECURITY_MAX_SID_SIZE> m_sid{};
    std::unique_ptr<ACL, FreeLocal> m_acl;
    SECURITY_DESCRIPTOR m_descriptor{};
    bool m_valid = false;
};

win::Handle OpenMapping() noexcept
{
    return win::Handle(OpenFileMappingA(FILE_MAP_WRITE, FALSE, CounterName));
}

win::Handle CreateMapping() noexcept
{
    CounterSecurity security;
    if (!security.valid())
    {
        return {};
    }
    SECURITY_ATTRIBUTES attributes = security.attributes();
    return win::Handle(
        CreateFileMappingA(INVALID_HANDLE_VALUE, &attributes, PAGE_READWRITE, 0, CounterBytes, CounterName));
}

win::Handle OpenOrCreateMapping() noexcept
{
    win::Handle mapping = OpenMapping();
    if (!mapping)
    {
        mapping = CreateMapping();
    }
    if (!mapping && GetLastError() == ERROR_ACCESS_DENIED)
    {
        // Another process was faster, and its list of rights refuses the creation's wish for all of them.
        // When it isn't there either, the error to be told is the creation's.
        mapping = OpenMapping();
        SetLastError(ERROR_ACCESS_DENIED);
    }
    return mapping;
}

} // namespace

void MakeSettingsCounter() noexcept
{
    if (counter.Get() != nullptr)
    {
        return;
    }

    win::Handle mapping = OpenOrCreateMapping();
    win::MappedView view(mapping, FILE_MAP_WRITE, CounterBytes);
    if (!view || view.CommittedBytes() < CounterBytes)
    {
        TellDebuggerOfMissing("NorvTRC_SECTION", GetLastError());
        return;
    }

    counter.Publish({std::move(mapping), std::move(view)});
    if (const Counter* made = counter.Get())
    {
        trace_state::settingsCounter.store(static_cast<const volatile std::uint32_t*>(made->view.get()));
    }
}

void CloseSettingsCounter() noexcept
{
    trace_state::settingsCounter.store(&trace_state::noSettingsCounter);
    counter.LetGo();
}

} // namespace norvepa
