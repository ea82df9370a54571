#include "trace/Norvotrc.h"

#include "SharedCounter.h"
#include "TracePeer.h"
#include "TraceScene.h"
#include "trace/TraceMutex.h"
#include "trace/TraceStatement.h"

#include <windows.h>

#include <cerrno>
#include <gmock/gmock.h>
#include <sstream>
#include <string>
#include <vector>

namespace norvepa
{

namespace
{

using test::SharedCounter;
using test::TracePeer;
using test::TraceScene;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr TraceSource source{"Test: ", "BL"};

// An event that no mask was asked about.
void Out(std::uint32_t level, const char* text)
{
    const TraceGuard guard;
    TraceOut("Test: ", level, "BL", 0, 0, "Source.cpp", 1, text);
}

std::uint32_t Mask()
{
    return trace_state::levelMask.load();
}

TEST(TraceSettingsInForce, WithoutTheKeyNothingIsTraced)
{
    TraceScene scene;
    TraceScene::ReadSettings();

    NORV_TRACE(source, 0xFFFFFFFF, "text");

    EXPECT_EQ(Mask(), 0u);
    EXPECT_THAT(test::FileNames(scene.folder().path()), IsEmpty());
}

TEST(TraceSettingsInForce, LevelIsTheMask)
{
    TraceScene scene;
    scene.TraceToFiles(L"0x88");

    EXPECT_EQ(Mask(), 0x88u);
    EXPECT_TRUE(TraceWanted(8) && TraceWanted(128));
    EXPECT_FALSE(TraceWanted(64));
}

TEST(TraceSettingsInForce, ChangedCounterIsMetByTheNextStatementOfAnyLevel)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Level", L"64");

    NORV_TRACE(source, TraceInfo, "before");
    SharedCounter().Bump();
    NORV_TRACE(source, TraceInfo, "after");

    EXPECT_THAT(scene.lines(), ElementsAre("Test:  after "));
}

TEST(TraceSettingsInForce, StatementThatReadThemIsWrittenOnlyIfTheNewMaskHasItsLevel)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Level", L"64");

    SharedCounter().Bump();
    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(Mask(), 64u);
    EXPECT_THAT(scene.lines(), IsEmpty());
}

TEST(TraceSettingsInForce, WithoutAReadingTheMaskIsNotAskedAgain)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");

    Out(64, "text");

    EXPECT_THAT(scene.lines(), ElementsAre("Test:  text "));
}

TEST(TraceSettingsInForce, AreReadOncePerChangeOfTheCounter)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    SharedCounter counter;

    counter.Bump();
    NORV_TRACE(source, TraceEntry, "text");
    EXPECT_EQ(trace_state::settingsSnapshot.load(), counter.Get());

    TraceScene::Set(L"Level", L"64");
    NORV_TRACE(source, TraceEntry, "text");
    EXPECT_EQ(Mask(), 8u);
}

TEST(TraceSettingsInForce, EveryProcessReadsThemAnewWhenTheCounterChanges)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("init");
    TraceScene::Set(L"Level", L"64");

    SharedCounter().Bump();
    peer.Ask("trace 64 there");
    NORV_TRACE(source, TraceInfo, "here");

    EXPECT_EQ(peer.Ask("mask"), "64");
    EXPECT_THAT(scene.lines(), ElementsAre("Peer:  there ", "Test:  here "));
}

TEST(TraceSettingsInForce, NothingHereChangesTheCounter)
{
    TraceScene scene;
    SharedCounter counter;
    counter.Set(77);

    scene.TraceToFiles(L"8");
    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(counter.Get(), 77u);
}

std::vector<std::string> LinesOfFile(const std::wstring& path)
{
    std::istringstream file(test::ReadBytes(path));
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

TEST(TraceSettingsInForce, AtTheLoadEverythingGoesToTheBuiltInFile)
{
    TraceScene scene;
    const std::wstring folder = L"C:\\TMP";
    const bool isMine = !test::Exists(folder);
    test::MakeFolders(folder);
    DeleteFileW(L"C:\\TMP\\NorvFILE1.TRC");
    TracePeer peer(scene.registry());

    EXPECT_EQ(peer.Ask("mask"), "4294967295");
    SharedCounter().Set(0); // what a process sees that has not mapped it yet
    peer.Ask("trace 8 line");

    // Other processes may trace there at this moment: those that have met a counter which is then put back.
    EXPECT_THAT(LinesOfFile(L"C:\\TMP\\NorvFILE1.TRC"),
                testing::Contains(
                    testing::AllOf(testing::StartsWith("L NvEPBL64 P"), testing::EndsWith(" Peer:  line"))));
    DeleteFileW(L"C:\\TMP\\NorvFILE1.TRC");
    if (isMine)
    {
        RemoveDirectoryW(folder.c_str());
    }
}

TEST(TraceOut, NullTextsCountAsEmpty)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    {
        const TraceGuard guard;
        TraceOut(nullptr, 8, nullptr, 0, 0, nullptr, 0, nullptr);
    }

    EXPECT_THAT(scene.lines(), ElementsAre("  "));
}

TEST(TraceOut, KeepsErrno)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    SharedCounter().Bump(); // a reading, with its conversions, on the way

    errno = EDOM;
    Out(8, "text");

    EXPECT_EQ(errno, EDOM);
    EXPECT_THAT(scene.lines(), SizeIs(1));
}

TEST(TraceOut, MessageIsCutTo256Characters)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");

    Out(8, std::string(300, 'm').c_str());

    EXPECT_THAT(scene.lines(), ElementsAre("Test:  " + std::string(256, 'm') + " "));
}

TEST(TraceInit, AcceptsANullName)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");

    TraceInit(nullptr, nullptr);

    EXPECT_EQ(Mask(), 8u);
}

TEST(TraceInit, NamesTheValueOfTheModule)
{
    TraceScene scene;
    TraceScene::Set(L"other", L"255");
    scene.TraceToFiles(L"8");

    TraceInit(nullptr, "other");

    EXPECT_EQ(Mask(), 8u);
}

} // namespace

} // namespace norvepa
