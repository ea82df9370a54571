#include "SharedCounter.h"
#include "TraceScene.h"
#include "trace/TraceStatement.h"

#include <chrono>
#include <gmock/gmock.h>
#include <string>
#include <thread>

namespace norvepa
{

namespace
{

using test::SharedCounter;
using test::TraceScene;
using testing::ElementsAre;
using testing::SizeIs;
using Clock = std::chrono::steady_clock;

constexpr TraceSource source{"Test: ", "BL"};

std::uint32_t Mask()
{
    return trace_state::levelMask.load();
}

// Traces at the entry level until the mask is another one.
void TraceUntilMaskIs(std::uint32_t mask)
{
    const auto deadline = Clock::now() + std::chrono::seconds(30);
    while (Mask() != mask && Clock::now() < deadline)
    {
        NORV_TRACE(source, TraceEntry, "waiting");
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

TEST(TraceConsult, ReadsTheSettingsAnewWhenItsSecondsHavePassed)
{
    TraceScene scene;
    SharedCounter().Set(5);
    TraceScene::Set(L"Consult", L"1");
    const auto start = Clock::now();
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Level", L"72");

    TraceUntilMaskIs(72);

    EXPECT_EQ(Mask(), 72u);
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(900));
}

TEST(TraceConsult, TakesAStatementThatReachesTheOutput)
{
    TraceScene scene;
    SharedCounter().Set(5);
    TraceScene::Set(L"Consult", L"1");
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Level", L"72");
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));

    NORV_TRACE(source, TraceInfo, "switched off");
    EXPECT_EQ(Mask(), 8u);

    NORV_TRACE(source, TraceEntry, "switched on");
    EXPECT_EQ(Mask(), 72u);
    EXPECT_THAT(scene.lines(), ElementsAre("Test:  switched on "));
}

TEST(TraceConsult, HasNoEffectWhileTheCounterIsZero)
{
    TraceScene scene;
    SharedCounter().Set(0);
    TraceScene::Set(L"Consult", L"1");
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Level", L"72");
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(Mask(), 8u);
    EXPECT_THAT(scene.lines(), SizeIs(1));
}

TEST(TraceConsult, WaitsForALongPeriod)
{
    TraceScene scene;
    SharedCounter().Set(5);
    TraceScene::Set(L"Consult", L"60");
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Level", L"72");

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(Mask(), 8u);
}

TEST(TraceConsult, OfNoSecondsNeverReads)
{
    TraceScene scene;
    SharedCounter().Set(5);
    TraceScene::Set(L"Consult", L"0");
    scene.TraceToFiles(L"8");
    TraceScene::Set(L"Level", L"72");

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(Mask(), 8u);
}

} // namespace

} // namespace norvepa
