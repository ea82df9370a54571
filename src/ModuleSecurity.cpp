#include "ModuleSecurity.h"

#include <aclapi.h>

namespace norvepa
{

namespace
{

constexpr DWORD FullAccess = 0x1F01FF; // FILE_ALL_ACCESS

} // namespace

void ModuleSecurity::Make() noexcept
{
    SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
    if (!AllocateAndInitializeSid(&authority, 1, SECURITY_AUTHENTICATED_USER_RID, 0, 0, 0, 0, 0, 0, 0,
                                  &m_authenticatedUsers))
    {
        OutputDebugStringW(L"AllocateAndInitializeSid failed for norvepaBl64x.dll");
    }

    EXPLICIT_ACCESSW access = {};
    access.grfAccessPermissions = FullAccess;
    access.grfAccessMode = SET_ACCESS;
    access.grfInheritance = NO_INHERITANCE;
    access.Trustee.TrusteeForm = TRUSTEE_IS_SID;
    access.Trustee.TrusteeType = TRUSTEE_IS_GROUP;
    access.Trustee.ptstrName = static_cast<LPWSTR>(m_authenticatedUsers);
    if (SetEntriesInAclW(1, &access, nullptr, &m_list) != ERROR_SUCCESS)
    {
        OutputDebugStringW(L"SetEntriesInAcl failed for norvepaBl64x.dll");
    }

    if (!InitializeSecurityDescriptor(&m_descriptor, SECURITY_DESCRIPTOR_REVISION))
    {
        OutputDebugStringW(L"InitializeSecurityDescriptor failed for norvepaBl64x.dll");
    }
    if (!SetSecurityDescriptorDacl(&m_descriptor, TRUE, m_list, FALSE))
    {
        OutputDebugStringW(L"SetSecurityDescriptorDacl failed for norvepaBl64x.dll");
    }
}

void ModuleSecurity::Free() noexcept
{
    LocalFree(m_list);
    m_list = nullptr;
    if (m_authenticatedUsers != nullptr)
    {
        FreeSid(m_authenticatedUsers);
        m_authenticatedUsers = nullptr;
    }
}

SECURITY_ATTRIBUTES ModuleSecurity::attributes() noexcept
{
    return {sizeof(SECURITY_ATTRIBUTES), &m_descriptor, FALSE};
}

} // namespace norvepa
