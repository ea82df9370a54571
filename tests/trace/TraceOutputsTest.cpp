#include "trace/TraceOutputs.h"

#include "TracePeer.h"
#include "TraceScene.h"
#include "support/DebuggerStrings.h"
#include "support/ImportHook.h"
#include "trace/TraceStatement.h"

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <gmock/gmock.h>
#include <string>

namespace norvepa
{

namespace
{

using test::TracePeer;
using test::TraceScene;
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

TEST(TraceOutputs, FilesAreCalledByTheirNameUpToItsDotAndTheirNumber)
{
    TraceScene scene;
    TraceScene::Set(L"Byte/File", L"1");
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"FileName", L"trace.log");
    TraceScene::ReadSettings();

    NORV_TRACE(source, TraceEntry, "one");

    EXPECT_THAT(test::FileNames(scene.folder().path()),
                testing::UnorderedElementsAre(L"trace1.TRC", L"trace2.TRC"));
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
