#include "NotifyExports.h"
#include "support/ImportHook.h"
#include "support/LastingThread.h"
#include "support/LibraryPresence.h"
#include "support/NamedEvent.h"
#include "support/Peer.h"
#include "support/StoreRoots.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

namespace norvepa::test
{
namespace
{

// The worker that comes first stands still within its look for the event, where it holds the registrations,
// until it may go on.
class HeldWorker
{
public:
    explicit HeldWorker(HMODULE library) : m_hook(std::in_place, "OpenEventW", Hold, library)
    {
        ResetEvent(holding());
        ResetEvent(released());
    }

    void Await() const { WaitForSingleObject(holding(), INFINITE); }

    // Those that follow open their events. To be called while the library is there.
    void LetOthersPass() { m_hook.reset(); }

    static void Release() { SetEvent(released()); }

private:
    static HANDLE holding()
    {
        static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        return event;
    }
    static HANDLE released()
    {
        static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        return event;
    }

    static HANDLE WINAPI Hold(DWORD access, BOOL inherits, const wchar_t* name)
    {
        SetEvent(holding());
        WaitForSingleObject(released(), INFINITE);
        return OpenEventW(access, inherits, name);
    }

    std::optional<ImportHook> m_hook;
};

class Unload : public testing::Test
{
protected:
    Unload() { WriteBytes(roots.logName(L"Pumpe"), LogNameFile(XmlContent().Text(L"Station", L"Halle 2"))); }

    ~Unload() override { EXPECT_TRUE(AwaitLibraryGone()); }

    static void Change(const NotifyExports& library, int value)
    {
        EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", std::to_wstring(value).c_str()), PGSP_OK);
    }

    StoreRoots roots;
};

TEST_F(Unload, MayFollowAChangeAtOnce)
{
    for (int round = 0; round < 20; ++round)
    {
        const NamedEvent event;
        {
            const NotifyExports library;
            ASSERT_EQ(library.RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);
            Change(library, round);
        }

        EXPECT_TRUE(event.Await()); // its worker has kept the library until then
        EXPECT_TRUE(AwaitLibraryGone());
    }
}

TEST_F(Unload, MayFollowManyChangesAtOnce)
{
    for (int round = 0; round < 5; ++round)
    {
        const NamedEvent event;
        {
            const NotifyExports library;
            ASSERT_EQ(library.RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);
            for (int change = 0; change < 20; ++change)
            {
                Change(library, round * 100 + change);
            }
        }

        EXPECT_TRUE(event.Await());
        EXPECT_TRUE(AwaitLibraryGone());
    }
}

TEST_F(Unload, MayFollowAChangeThatFindsADeadEvent)
{
    for (int round = 0; round < 10; ++round)
    {
        const NotifyExports library;
        for (int event = 0; event < 50; ++event)
        {
            ASSERT_EQ(library.RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);
        }
        Change(library, round);
    }
}

TEST_F(Unload, WaitsForAWorkerThatHoldsTheRegistrationsAndForThoseThatWaitForIt)
{
    const NamedEvent event;
    {
        const NotifyExports library;
        HeldWorker held(library.module());
        ASSERT_EQ(library.RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);
        for (int change = 0; change < 30; ++change)
        {
            Change(library, change);
        }
        held.Await();
        held.LetOthersPass();
    }
    EXPECT_TRUE(IsLibraryLoaded());
    EXPECT_FALSE(event.IsSet());

    HeldWorker::Release();

    EXPECT_TRUE(AwaitLibraryGone());
    EXPECT_TRUE(event.IsSet());
}

TEST_F(Unload, MayBeOnAnotherThreadThanTheLoad)
{
    LastingThread other;
    for (int round = 0; round < 10; ++round)
    {
        const NamedEvent event;
        auto library = std::make_unique<NotifyExports>();
        ASSERT_EQ(library->RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);
        Change(*library, round);

        other.Run([&] { library.reset(); });

        EXPECT_TRUE(event.Await());
        EXPECT_TRUE(AwaitLibraryGone());
    }
}

TEST_F(Unload, MayFollowALoadOnAThreadThatHasEnded)
{
    std::unique_ptr<NotifyExports> library;
    std::thread([&] { library = std::make_unique<NotifyExports>(); }).join();
    const NamedEvent event;
    ASSERT_EQ(library->RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);

    Change(*library, 1);
    library.reset();

    EXPECT_TRUE(event.Await());
    EXPECT_TRUE(AwaitLibraryGone());
}

TEST_F(Unload, ForgetsWhatIsRegistered)
{
    const NamedEvent event;
    {
        const NotifyExports library;
        ASSERT_EQ(library.RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);
    }
    ASSERT_FALSE(IsLibraryLoaded());

    const NotifyExports library;
    EXPECT_EQ(library.UnRegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_ERR_NOT_REGISTERED);
}

TEST_F(Unload, IsNotWaitedForWhenTheProcessEnds)
{
    for (int round = 0; round < 5; ++round)
    {
        const NamedEvent event;
        Peer peer(L"notify_peer.exe", roots.registry());
        ASSERT_EQ(peer.Ask("load"), "done");
        ASSERT_EQ(peer.Ask("register LogNames||" + ToUtf8(event.name())), "0");
        for (int dead = 0; dead < 20; ++dead)
        {
            ASSERT_EQ(peer.Ask("register LogNames||" + ToUtf8(FreshEventName())), "0");
        }

        peer.Send("end Pumpe|" + std::to_string(10 + round));

        EXPECT_EQ(peer.ExitCode(), 0U);
    }
}

} // namespace
} // namespace norvepa::test
