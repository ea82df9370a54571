#include "trace/TraceOutputs.h"

#include "TracePeer.h"
#include "TraceScene.h"
#include "support/DebuggerStrings.h"
#include "support/ImportHook.h"
#include "trace/TraceDriver.h"
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
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr TraceSource source{"Test: ", "BL"};
constexpr char UnknownOutput[] = "E Fehler im Kelvex-Tracesystem, bitte wenden Sie sich an den Hersteller !";

void GoOverTo(const std::wstring& output)
{
    TraceScene::Set(L"Output", output);
    TraceScene::ReadSettings();
}

TEST(TraceDebugger, LineEndsInALineFeed)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    GoOverTo(L"DBG");
    const test::DebuggerStrings debugger;

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_THAT(debugger.heard(), ElementsAre("Test:  text \n"));
    EXPECT_THAT(scene.lines(), IsEmpty());
}

TEST(TracePorts, AreAcceptedAndNothingIsWritten)
{
    for (const wchar_t* port : {L"COM1", L"COM2"})
    {
        TraceScene scene;
        scene.TraceToFiles(L"8");
        GoOverTo(port);
        const test::DebuggerStrings debugger;

        NORV_TRACE(source, TraceEntry, "text");

        EXPECT_THAT(scene.lines(), IsEmpty());
        EXPECT_THAT(debugger.heard(), IsEmpty());
    }
}

TEST(TracePipe, IsAFaultThatTheFormerOutputTells)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");

    GoOverTo(L"PIPE");
    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_THAT(scene.lines(), ElementsAre(UnknownOutput));
}

TEST(TracePipe, IsToldByTheDebuggerWhenThatWasTheFormerOutput)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    GoOverTo(L"DBG");
    const test::DebuggerStrings debugger;

    GoOverTo(L"PIPE");

    EXPECT_THAT(debugger.heard(), ElementsAre(UnknownOutput + std::string("\n")));
}

TEST(TracePipe, IsNotToldASecondTimeWhileItIsTheOutput)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    GoOverTo(L"PIPE");

    TraceScene::ReadSettings();

    EXPECT_THAT(scene.lines(), ElementsAre(UnknownOutput));
}

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
    {
        const test::ImportHook opening("CreateFileA", DriverCalls::Open);
        GoOverTo(L"VXD");
        GoOverTo(L"VXD");
    }
    const test::ImportHook controlling("DeviceIoControl", DriverCalls::Control);

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_THAT(DriverCalls::opened,
                ElementsAre("\\\\.\\NorvONLINX.VXD 0 0 plain " + std::to_string(CREATE_NEW) + " " +
                            std::to_string(FILE_FLAG_DELETE_ON_CLOSE)));
    EXPECT_THAT(DriverCalls::controlled, ElementsAre("2 Test:  text " + std::string(1, '\0') + " none 0"));
    EXPECT_THAT(scene.lines(), IsEmpty());
}

TEST(TraceOutputs, UnknownWordLeavesFileOutputInForce)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    GoOverTo(L"NONE");

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_THAT(scene.lines(), ElementsAre("Test:  text "));
}

TEST(TraceOutputs, LineThatCannotBeMadeIsNotWritten)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Format", L"LONG");
    TraceScene::ReadSettings();
    const test::ImportHook clock(
        "strftime", +[](char* text, std::size_t, const char*, const std::tm*) -> std::size_t {
            std::fill_n(text, 50, 'o');
            text[50] = '\0';
            return 50;
        });

    const std::string tag(64, 't');
    const std::string message(256, 'm');
    NORV_TRACE((TraceSource{tag.c_str(), "BL"}), TraceEntry, "%s", message.c_str());

    EXPECT_THAT(scene.lines(), IsEmpty());
}

TEST(TraceOutputs, FileOutputGoesOnWithTheNewerFile)
{
    TraceScene scene;
    test::WriteBytes(scene.file(2), "");
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(test::ReadBytes(scene.file(2)), "Test:  text \n");
    EXPECT_FALSE(test::Exists(scene.file(1)));
}

TEST(TraceOutputs, BytesPerFileMakeTheFilesAlternate)
{
    TraceScene scene;
    TraceScene::Set(L"Byte/File", L"20");
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, "one");
    NORV_TRACE(source, TraceEntry, "two");
    NORV_TRACE(source, TraceEntry, "three");

    EXPECT_EQ(test::ReadBytes(scene.file(1)), "Test:  one \nTest:  two \n");
    EXPECT_EQ(test::ReadBytes(scene.file(2)), "Test:  three \n");
}

TEST(TraceOutputs, TwoProcessesWriteTheSamePairOfFiles)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("init");

    NORV_TRACE(source, TraceEntry, "here");
    peer.Ask("trace 8 there");
    NORV_TRACE(source, TraceEntry, "here again");

    EXPECT_THAT(scene.lines(), ElementsAre("Test:  here ", "Peer:  there ", "Test:  here again "));
}

} // namespace

} // namespace norvepa
