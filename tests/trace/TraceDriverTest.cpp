#include "trace/TraceDriver.h"

#include "TracePeer.h"
#include "TraceScene.h"
#include "support/ImportHook.h"
#include "trace/TraceStatement.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa
{

namespace
{

using test::TracePeer;
using test::TraceScene;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr TraceSource source{"Test: ", "BL"};

TEST(TraceDriver, FaultTextDependsOnTheError)
{
    EXPECT_EQ(DriverFault(50), "Unable to open VxD, device does not support DeviceIOCTL");
    EXPECT_EQ(DriverFault(2), "Unable to open VxD, got error code !");
    EXPECT_EQ(DriverFault(5), "Unable to open VxD, got error code !");
}

TEST(TraceDriver, MissingDriverIsToldByTheFormerOutputAndNothingIsWritten)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("init");
    TraceScene::Set(L"Output", L"VXD");

    peer.Ask("init");
    peer.Ask("trace 8 line");

    EXPECT_THAT(scene.lines(), ElementsAre("E Unable to open VxD, got error code !"));
}

HANDLE WINAPI NotADevice(const char*, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD, HANDLE)
{
    SetLastError(ERROR_NOT_SUPPORTED);
    return INVALID_HANDLE_VALUE;
}

TEST(TraceDriver, ThatCannotBeOpenedHasTheSystemsError)
{
    const test::ImportHook hook("CreateFileA", NotADevice);

    EXPECT_EQ(TraceDriver().error(), static_cast<DWORD>(ERROR_NOT_SUPPORTED));
}

// The calls that reach a driver that is there.
struct DriverCalls
{
    static inline std::vector<std::string> opened;
    static inline std::vector<std::string> controlled;

    static HANDLE WINAPI Open(const char* name, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                              DWORD disposition, DWORD flags, HANDLE)
    {
        opened.push_back(std::string(name) + " " + std::to_string(access) + " " + std::to_string(sharing) +
                         " " + (security == nullptr ? "plain" : "secured") + " " +
                         std::to_string(disposition) + " " + std::to_string(flags));
        return CreateEventW(nullptr, TRUE, FALSE, nullptr);
    }

    static BOOL WINAPI Control(HANDLE, DWORD code, void* input, DWORD inputSize, void* output,
                               DWORD outputSize, DWORD*, OVERLAPPED*)
    {
        controlled.push_back(std::to_string(code) + " " +
                             std::string(static_cast<const char*>(input), inputSize) + " " +
                             (output == nullptr ? "none" : "some") + " " + std::to_string(outputSize));
        return TRUE;
    }
};

TEST(TraceDriver, ThatIsOpenGetsEachLineWithItsTerminatorAndIsOpenedOnce)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    DriverCalls::controlled.clear(); // opened it has been by the first of this process, and stays
    {
        const test::ImportHook opening("CreateFileA", DriverCalls::Open);
        TraceScene::Set(L"Output", L"VXD");
        TraceScene::ReadSettings();
        TraceScene::ReadSettings();
    }
    const test::ImportHook controlling("DeviceIoControl", DriverCalls::Control);

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_THAT(DriverCalls::opened,
                ElementsAre("\\\\.\\NorvONLINX.VXD 0 0 plain " + std::to_string(CREATE_NEW) + " " +
                            std::to_string(FILE_FLAG_DELETE_ON_CLOSE)));
    EXPECT_THAT(DriverCalls::controlled, ElementsAre("2 Test:  text " + std::string(1, '\0') + " none 0"));
    EXPECT_THAT(scene.lines(), IsEmpty());
}

} // namespace

} // namespace norvepa
