#include "SharedCounter.h"
#include "TraceScene.h"
#include "support/ImportHook.h"
#include "trace/TraceStatement.h"

#include <windows.h>

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
using namespace std::chrono_literals;

constexpr TraceSource source{"Test: ", "BL"};

// The system's time since its start, which passes only when a test says so.
class StoppedClock
{
public:
    static void Pass(std::chrono::milliseconds time) { now += static_cast<ULONGLONG>(time.count()); }

private:
    static ULONGLONG WINAPI Now() { return now; }

    static inline ULONGLONG now = 1'000'000;
    test::ImportHook m_hook{"GetTickCount64", Now};
};

// Files that are traced to at level 8, a counter that isn't 0, and a mask of 72 that nobody has read yet.
class TraceConsult : public testing::Test
{
protected:
    void TraceWithConsult(const std::wstring& seconds) const
    {
        SharedCounter().Set(5);
        TraceScene::Set(L"Consult", seconds);
        m_scene.TraceToFiles(L"8");
        TraceScene::Set(L"Level", L"72");
    }

    static void Trace() { NORV_TRACE(source, TraceEntry, "text"); }
    [[nodiscard]] static std::uint32_t Mask() { return trace_state::levelMask.load(); }
    [[nodiscard]] const TraceScene& scene() const { return m_scene; }

private:
    TraceScene m_scene;
};

TEST_F(TraceConsult, ReadsTheSettingsAnewOnceItsSecondsHavePassed)
{
    const StoppedClock clock;
    TraceWithConsult(L"60");

    clock.Pass(59'999ms);
    Trace();
    EXPECT_EQ(Mask(), 8u);

    clock.Pass(1ms);
    Trace();
    EXPECT_EQ(Mask(), 72u);
}

TEST_F(TraceConsult, GoesByTheRealTime)
{
    const auto start = std::chrono::steady_clock::now();
    TraceWithConsult(L"1");

    while (Mask() != 72 && std::chrono::steady_clock::now() < start + 30s)
    {
        Trace();
        std::this_thread::sleep_for(10ms);
    }

    EXPECT_EQ(Mask(), 72u);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 900ms);
}

TEST_F(TraceConsult, TakesAStatementThatReachesTheOutput)
{
    const StoppedClock clock;
    TraceWithConsult(L"1");
    clock.Pass(1s);

    NORV_TRACE(source, TraceInfo, "switched off");
    EXPECT_EQ(Mask(), 8u);

    NORV_TRACE(source, TraceEntry, "switched on");
    EXPECT_EQ(Mask(), 72u);
    EXPECT_THAT(scene().lines(), ElementsAre("Test:  switched on "));
}

TEST_F(TraceConsult, BeginsItsSecondsAnewWithEachReading)
{
    const StoppedClock clock;
    TraceWithConsult(L"60");
    clock.Pass(59s);
    SharedCounter().Bump();
    Trace();
    ASSERT_EQ(Mask(), 72u);
    TraceScene::Set(L"Level", L"24");

    clock.Pass(59s);
    Trace();
    EXPECT_EQ(Mask(), 72u);

    clock.Pass(1s);
    Trace();
    EXPECT_EQ(Mask(), 24u);
}

TEST_F(TraceConsult, HasNoEffectWhileTheCounterIsZero)
{
    const StoppedClock clock;
    TraceWithConsult(L"1");
    SharedCounter().Set(0);
    Trace(); // reads, for the counter has changed
    TraceScene::Set(L"Level", L"24");
    clock.Pass(1h);

    Trace();

    EXPECT_EQ(Mask(), 72u);
    EXPECT_THAT(scene().lines(), SizeIs(2));
}

TEST_F(TraceConsult, OfNoSecondsNeverReads)
{
    const StoppedClock clock;
    TraceWithConsult(L"0");
    clock.Pass(1h);

    Trace();

    EXPECT_EQ(Mask(), 8u);
}

TEST_F(TraceConsult, OfLessThanNoSecondsReadsAtEachEvent)
{
    const StoppedClock clock;
    TraceWithConsult(L"-5");

    Trace();
    EXPECT_EQ(Mask(), 72u);

    TraceScene::Set(L"Level", L"24");
    Trace();
    EXPECT_EQ(Mask(), 24u);
}

} // namespace

} // namespace norvepa
