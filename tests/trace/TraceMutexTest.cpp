#include "trace/TraceMutex.h"

#include "TracePeer.h"
#include "TraceScene.h"
#include "trace/TraceStatement.h"
#include "win/Handle.h"

#include <windows.h>

#include <chrono>
#include <functional>
#include <future>
#include <gmock/gmock.h>
#include <string>
#include <thread>

namespace norvepa
{

namespace
{

using test::TracePeer;
using test::TraceScene;
using testing::HasSubstr;
using Seconds = std::chrono::duration<double>;

constexpr TraceSource source{"Test: ", "BL"};

class TraceMutexTest : public testing::Test
{
protected:
    // The mutex as another program has it.
    [[nodiscard]] HANDLE mutex() const { return m_mutex.get(); }
    [[nodiscard]] bool IsFree() const
    {
        return std::async(std::launch::async,
                          [this] {
                              const DWORD result = WaitForSingleObject(mutex(), 0);
                              ReleaseMutex(mutex());
                              return result == WAIT_OBJECT_0;
                          })
            .get();
    }

private:
    win::Handle m_mutex{OpenMutexA(SYNCHRONIZE, FALSE, "Global\\NorvTRACE_MUTEX")};
};

Seconds TimeOf(const std::function<void()>& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::steady_clock::now() - start;
}

TEST_F(TraceMutexTest, IsThereFromTheLoadOn)
{
    EXPECT_NE(mutex(), nullptr);
    EXPECT_TRUE(IsFree());
}

TEST_F(TraceMutexTest, IsHeldBetweenLockAndUnlock)
{
    TraceLock();
    EXPECT_FALSE(IsFree());

    TraceUnlock();
    EXPECT_TRUE(IsFree());
}

TEST_F(TraceMutexTest, StatementGivesItBack)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(scene.lines().size(), 1u);
    EXPECT_TRUE(IsFree());
}

TEST_F(TraceMutexTest, SwitchedOffStatementDoesNotWaitForIt)
{
    TraceScene scene;
    TracePeer peer(scene.registry());
    peer.Ask("lock");

    EXPECT_LT(TimeOf([] { NORV_TRACE(source, TraceEntry, "text"); }), Seconds(5));
}

TEST_F(TraceMutexTest, LoadWithoutSettingsDoesNotWaitForIt)
{
    TraceScene scene;
    TracePeer peer(scene.registry());
    peer.Ask("lock");

    EXPECT_LT(TimeOf(TraceScene::ReadSettings), Seconds(5));
}

TEST_F(TraceMutexTest, StatementWaitsWhileAnotherProcessHoldsIt)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("lock");

    auto statement = std::async(std::launch::async, [] { NORV_TRACE(source, TraceEntry, "text"); });
    EXPECT_EQ(statement.wait_for(std::chrono::milliseconds(500)), std::future_status::timeout);
    EXPECT_TRUE(scene.lines().empty());

    peer.Ask("unlock");
    statement.get();
    EXPECT_EQ(scene.lines().size(), 1u);
}

TEST_F(TraceMutexTest, AfterTenSecondsTheStatementGoesOnWithoutIt)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("lock");

    const Seconds waited = TimeOf([] { NORV_TRACE(source, TraceEntry, "text"); });

    EXPECT_GE(waited, Seconds(9.9));
    EXPECT_EQ(scene.lines().size(), 1u);
    EXPECT_FALSE(IsFree()); // the peer's hold was not given back by us
    peer.Ask("unlock");
    EXPECT_TRUE(IsFree());
}

TEST_F(TraceMutexTest, AbandonedMutexCountsAsTaken)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("lock");
    peer.Kill();

    const Seconds waited = TimeOf([] { NORV_TRACE(source, TraceEntry, "text"); });

    EXPECT_LT(waited, Seconds(5));
    EXPECT_EQ(scene.lines().size(), 1u);
    EXPECT_TRUE(IsFree());
}

TEST_F(TraceMutexTest, UnlockWithoutLockDoesNothing)
{
    TraceUnlock();

    EXPECT_TRUE(IsFree());
}

TEST(TraceMutexBetweenProcesses, IsMadeOnFirstUseAlsoWithoutInit)
{
    TraceScene scene;
    TracePeer holder(scene.registry());
    TracePeer waiter(scene.registry());

    holder.Ask("lock");
    waiter.Send("lock");
    holder.Ask("unlock");

    EXPECT_EQ(waiter.Answer(), "done");
}

TEST(TraceMutexBetweenProcesses, MutexThatCannotBeMadeIsToldToTheDebuggerAndTracingGoesOn)
{
    TraceScene scene;
    scene.SetFiles();
    TraceScene::Set(L"Level", L"8");
    TraceScene::Set(L"Format", L"TEXT");
    TracePeer peer(scene.registry());
    peer.Ask("fail-mutex");

    peer.Ask("init");
    EXPECT_THAT(peer.Ask("debugger"), HasSubstr("ERROR: Can't create NorvTRC_MUTEX, GetLastError()=5 \\n"));

    peer.Ask("trace 8 line");
    EXPECT_THAT(scene.lines(), testing::ElementsAre("Peer:  line "));
}

TEST(TraceMutexBetweenProcesses, LinesOfSeveralProcessesDoNotMix)
{
    TraceScene scene;
    scene.SetFiles();
    TraceScene::Set(L"Level", L"8");
    TraceScene::Set(L"Format", L"TEXT");
    TracePeer first(scene.registry());
    TracePeer second(scene.registry());
    first.Ask("init");
    second.Ask("init");

    for (int count = 0; count < 50; ++count)
    {
        first.Send("trace 8 first");
        second.Send("trace 8 second");
        static_cast<void>(first.Answer());
        static_cast<void>(second.Answer());
    }

    EXPECT_EQ(scene.lines().size(), 100u);
    EXPECT_THAT(scene.lines(), testing::Each(testing::AnyOf("Peer:  first ", "Peer:  second ")));
}

TEST(TraceMutexBetweenThreads, LinesOfSeveralThreadsDoNotMix)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    const auto trace = [](const wchar_t* name) {
        for (int count = 0; count < 100; ++count)
        {
            NORV_TRACE(source, TraceEntry, "%s", TraceToAnsi(name));
        }
    };

    std::thread other(trace, L"other");
    trace(L"one");
    other.join();

    EXPECT_EQ(scene.lines().size(), 200u);
    EXPECT_THAT(scene.lines(), testing::Each(testing::AnyOf("Test:  one ", "Test:  other ")));
}

} // namespace

} // namespace norvepa
