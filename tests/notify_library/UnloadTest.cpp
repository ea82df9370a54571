#include "NotifyExports.h"
#include "support/Eventually.h"
#include "support/NamedEvent.h"
#include "support/Peer.h"
#include "support/StoreRoots.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

bool IsLoaded()
{
    return GetModuleHandleW(L"NorvepaBl64x.dll") != nullptr;
}

class Unload : public testing::Test
{
protected:
    Unload() { WriteBytes(roots.logName(L"Pumpe"), LogNameFile(XmlContent().Text(L"Station", L"Halle 2"))); }

    ~Unload() override
    {
        EXPECT_TRUE(Eventually([] { return !IsLoaded(); }));
    }

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
        EXPECT_TRUE(Eventually([] { return !IsLoaded(); }));
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
        EXPECT_TRUE(Eventually([] { return !IsLoaded(); }));
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

TEST_F(Unload, ForgetsWhatIsRegistered)
{
    const NamedEvent event;
    {
        const NotifyExports library;
        ASSERT_EQ(library.RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);
    }
    ASSERT_FALSE(IsLoaded());

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
