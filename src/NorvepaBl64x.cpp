#include "NorvepaBl64x.h"

#include "ExceptionMemory.h"
#include "ModuleSecurity.h"
#include "frame/CallScope.h"
#include "handover/norvepaFileCache.h"
#include "meta/CachedMetaFile.h"
#include "meta/cEpaBlCache.h"
#include "meta/cMetaFiles.h"
#include "norvepa.h"
#include "notify/NotifyRegistration.h"
#include "notify/directoryCache.h"
#include "trace/Norvotrc.h"
#include "xml/ImageCache.h"

#include <windows.h>
#include <objbase.h>

namespace norvepa
{

namespace
{

// The trace mutex and ring are made with it.
constinit ModuleSecurity moduleSecurity;

} // namespace

int CNorvepaBl64xApp::InitInstance() noexcept
{
    CoInitialize(nullptr);

    moduleSecurity.Make();
    SECURITY_ATTRIBUTES security = moduleSecurity.attributes();
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

// What the module would otherwise leave behind in a process that goes on without it, the youngest first.
void GiveBack() noexcept
{
    FreeCallScopes();
    FreeDirectoryCache();
    FreeConstraints();
    FreeFileCache();
    MetaFreeAnswers();
    MetaFreeDocuments();
    FreeImages();
    TraceEnd();
    moduleSecurity.Free();
    FreeExceptionMemory();
}

} // namespace

} // namespace norvepa

void NorvepaBl64x_deinit(void)
{
    norvepa::MetaDropAllDocuments();
    norvepa::DropImages();
    norvepa::deinitWatchDirectories();
}

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        norvepa::MakeExceptionMemory();
        return norvepa::theApp.InitInstance();
    }
    // A process that ends takes everything along. Its other threads have been stopped wherever they were: no
    // lock is waited for, and nothing that they may have been changing is touched.
    if (reason == DLL_PROCESS_DETACH && processEnds == nullptr)
    {
        norvepa::theApp.ExitInstance();
        norvepa::GiveBack();
    }
    return TRUE;
}
