#include "InstalledEngine.h"
#include "SharedCounter.h"
#include "TraceScene.h"
#include "support/ProcessResources.h"
#include "trace/Norvotrc.h"
#include "trace/TraceMutex.h"
#include "trace/TraceStatement.h"
#include "win/Handle.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa
{

namespace
{

using test::CountProcessResources;
using test::ProcessResources;
using test::TraceScene;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr TraceSource source{"Test: ", "BL"};

void Trace(const char* text)
{
    NORV_TRACE(source, TraceEntry, "%s", text);
}

// The scene reads the settings again when it goes, as the next test of this process expects it.
class TraceEndTest : public testing::Test
{
protected:
    // Settings of an output that isn't files, read.
    static void TraceTo(const wchar_t* output)
    {
        TraceScene::Set(L"Output", output);
        TraceScene::Set(L"Level", L"8");
        TraceScene::Set(L"Format", L"TEXT");
        TraceScene::ReadSettings();
    }

    // Once the system has laid by what it needs itself for the first time.
    static ProcessResources ResourcesWithoutTrace(const wchar_t* output)
    {
        TraceTo(output);
        Trace("first");
        TraceEnd();
        return CountProcessResources();
    }

    // What the engine leaves behind when it goes is its own affair: only itself is looked for.
    static bool IsEngineLoaded() { return GetModuleHandleW(L"NorvTraceEngine64X.dll") != nullptr; }

    // In the whole machine. Nobody else traces to it while a test of the trace runs.
    static bool IsRingThere()
    {
        return static_cast<bool>(
            win::Handle(OpenFileMappingA(FILE_MAP_READ, FALSE, "Global\\NorvSDD_Trace")));
    }

    TraceScene scene;
    const test::InstalledEngine engine{scene.folder()};
};

// The names of mutex and counter are there for as long as any process of the machine traces: what this one
// has of them is seen by its handles and views.
TEST_F(TraceEndTest, GivesBackMutexAndCounter)
{
    scene.SetFiles();
    const ProcessResources before = ResourcesWithoutTrace(L"FILE");
    TraceScene::ReadSettings();
    EXPECT_NE(CountProcessResources(), before);

    TraceEnd();

    EXPECT_EQ(CountProcessResources(), before);
}

TEST_F(TraceEndTest, GivesBackTheRing)
{
    const ProcessResources before = ResourcesWithoutTrace(L"SM");
    TraceTo(L"SM");
    Trace("line");
    EXPECT_TRUE(IsRingThere());

    TraceEnd();

    EXPECT_FALSE(IsRingThere());
    EXPECT_EQ(CountProcessResources(), before);
}

TEST_F(TraceEndTest, UnloadsTheTraceEngine)
{
    engine.Install(L"whole");
    TraceTo(L"NorvTRACEENGINE");
    Trace("line");
    EXPECT_TRUE(IsEngineLoaded());

    TraceEnd();

    EXPECT_FALSE(IsEngineLoaded());
}

TEST_F(TraceEndTest, GivesBackEachOutputThatWasEverInForce)
{
    engine.Install(L"whole");
    scene.SetFiles();
    for (const wchar_t* const output : {L"SM", L"NorvTRACEENGINE", L"FILE"})
    {
        TraceTo(output);
        Trace("line");
    }

    TraceEnd();

    EXPECT_FALSE(IsEngineLoaded());
    EXPECT_FALSE(IsRingThere());
}

TEST_F(TraceEndTest, SwitchesEveryStatementOff)
{
    scene.TraceToFiles(L"0xFFFFFFFF");
    Trace("ahead");

    TraceEnd();

    for (std::uint32_t bit = 0; bit < 32; ++bit)
    {
        EXPECT_FALSE(TraceWanted(std::uint32_t{1} << bit)) << bit;
    }
    Trace("behind");
    EXPECT_THAT(scene.lines(), ElementsAre("Test:  ahead "));
}

TEST_F(TraceEndTest, LeavesTheArgumentsOfStatementsUnevaluated)
{
    scene.TraceToFiles(L"8");
    int evaluated = 0;
    const auto text = [&] {
        ++evaluated;
        return "line";
    };

    TraceEnd();
    Trace("line");
    NORV_TRACE(source, TraceEntry, "%s", text());

    EXPECT_EQ(evaluated, 0);
}

TEST_F(TraceEndTest, IsNotUndoneByAChangeOfTheMachinesSettings)
{
    scene.TraceToFiles(L"8");
    test::SharedCounter counter;
    const std::uint32_t before = counter.Get();

    TraceEnd();
    counter.Bump();
    Trace("line");

    EXPECT_FALSE(TraceWanted(TraceEntry));
    EXPECT_THAT(scene.lines(), IsEmpty());
    counter.Set(before);
}

TEST_F(TraceEndTest, MayBeFollowedByATraceThatBeginsAnew)
{
    scene.TraceToFiles(L"8");
    Trace("one");
    TraceEnd();

    TraceScene::ReadSettings();
    Trace("two");

    EXPECT_THAT(scene.lines(), ElementsAre("Test:  one ", "Test:  two "));
    EXPECT_TRUE(win::Handle(OpenMutexA(SYNCHRONIZE, FALSE, "Global\\NorvTRACE_MUTEX")));
    EXPECT_TRUE(win::Handle(OpenFileMappingA(FILE_MAP_WRITE, FALSE, "Global\\NorvTRACE_SECTION")));
}

TEST_F(TraceEndTest, MayBeFollowedByATraceThatHeedsTheCounterAgain)
{
    scene.TraceToFiles(L"8");
    TraceEnd();
    TraceScene::ReadSettings();
    TraceScene::Set(L"Level", L"0");

    test::SharedCounter().Bump();
    Trace("line");

    EXPECT_THAT(scene.lines(), IsEmpty());
    EXPECT_EQ(trace_state::levelMask.load(), 0U);
}

TEST_F(TraceEndTest, MayComeTwiceAndWithoutABeginning)
{
    TraceEnd();

    TraceEnd();

    EXPECT_FALSE(TraceWanted(TraceEntry));
}

} // namespace

} // namespace norvepa
