#include "NorvepaBl64x.h"

#include "meta/cMetaFiles.h"
#include "norvepa.h"
#include "notify/NotifyRegistration.h"
#include "notify/directoryCache.h"
#include "trace/Norvotrc.h"

#include <windows.h>
#include <aclapi.h>
#include <objbase.h>

namespace norvepa
{

namespace
{

constexpr DWORD FullAccess = 0x1F01FF; // FILE_ALL_ACCESS

// Stays for the life of the process with its SID and list: the trace mutex and ring are made with it.
SECURITY_DESCRIPTOR moduleSecurity;

void AllowAuthenticatedUsers(SECURITY_DESCRIPTOR& descriptor) noexcept
{
    SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
    PSID authenticatedUsers = nullptr;
    if (!AllocateAndInitializeSid(&authority, 1, SECURITY_AUTHENTICATED_USER_RID, 0, 0, 0, 0, 0, 0, 0,
                                  &authenticatedUsers))
    {
        OutputDebugStringW(L"AllocateAndInitializeSid failed for norvepaBl64x.dll");
    }

    EXPLICIT_ACCESSW access = {};
    access.grfAccessPermissions = FullAccess;
    access.grfAccessMode = SET_ACCESS;
    access.grfInheritance = NO_INHERITANCE;
    access.Trustee.TrusteeForm = TRUSTEE_IS_SID;
    access.Trustee.TrusteeType = TRUSTEE_IS_GROUP;
    access.Trustee.ptstrName = static_cast<LPWSTR>(authenticatedUsers);
    PACL list = nullptr;
    if (SetEntriesInAclW(1, &access, nullptr, &list) != ERROR_SUCCESS)
    {
        OutputDebugStringW(L"SetEntriesInAcl failed for norvepaBl64x.dll");
    }

    if (!InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION))
    {
        OutputDebugStringW(L"InitializeSecurityDescriptor failed for norvepaBl64x.dll");
    }
    if (!SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE))
    {
        OutputDebugStringW(L"SetSecurityDescriptorDacl failed for norvepaBl64x.dll");
    }
}

} // namespace

int CNorvepaBl64xApp::InitInstance() noexcept
{
    CoInitialize(nullptr);

    AllowAuthenticatedUsers(moduleSecurity);
    SECURITY_ATTRIBUTES security = {sizeof(security), &moduleSecurity, FALSE};
    TraceInit(&security, "norvepaBl64x");
    return 1;
}

int CNorvepaBl64xApp::ExitInstance() noexcept
{
    FreeNotifyRegistrations();
    CoUninitialize();
    return 1;
}

namespace
{

CNorvepaBl64xApp theApp;

} // namespace

} // namespace norvepa

void NorvepaBl64x_deinit(void)
{
    norvepa::MetaDropAllDocuments();
    norvepa::deinitWatchDirectories();
}

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        return norvepa::theApp.InitInstance();
    }
    if (reason == DLL_PROCESS_DETACH && processEnds == nullptr)
    {
        return norvepa::theApp.ExitInstance();
    }
    return TRUE;
}
