#include "NotifyExports.h"
#include "support/Eventually.h"
#include "support/NamedEvent.h"
#include "support/Peer.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

class AnnouncedChange : public testing::Test
{
protected:
    AnnouncedChange() { EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_OK); }

    void Register(const wchar_t* file, const NamedEvent& event) const
    {
        ASSERT_EQ(library.RegisterNotification(L"LogNames", file, event.c_str()), PGSP_OK);
    }

    StoreRoots roots;
    NotifyExports library;
};

TEST_F(AnnouncedChange, IsANewLogName)
{
    const NamedEvent event;
    Register(L"Presse", event);

    ASSERT_EQ(library.LogNameCreateBL(L"Presse"), PGSP_OK);

    EXPECT_TRUE(event.Await());
}

TEST_F(AnnouncedChange, IsANewValue)
{
    const NamedEvent event;
    Register(nullptr, event);
    static_cast<void>(event.IsSet());

    ASSERT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"2"), PGSP_OK);

    EXPECT_TRUE(event.Await());
}

TEST_F(AnnouncedChange, IsALogNameThatIsGone)
{
    const NamedEvent event;
    Register(L"PUMPE", event);

    ASSERT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);

    EXPECT_TRUE(event.Await());
}

TEST_F(AnnouncedChange, IsToldToARegistrantInAnotherProcess)
{
    Peer peer(L"notify_peer.exe", roots.registry());
    const std::wstring name = FreshEventName(L"Global\\");
    ASSERT_EQ(peer.Ask("event " + ToUtf8(name)), "done");
    ASSERT_EQ(library.RegisterNotification(L"LogNames", L"Pumpe", name.c_str()), PGSP_OK);

    ASSERT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"2"), PGSP_OK);

    EXPECT_EQ(peer.Ask("await " + ToUtf8(name)), "set");
}

TEST_F(AnnouncedChange, OfAnotherProcessIsToldToThoseRegisteredThere)
{
    Peer peer(L"notify_peer.exe", roots.registry());
    const NamedEvent here;
    const NamedEvent there;
    Register(L"Pumpe", here);
    ASSERT_EQ(peer.Ask("load"), "done");
    ASSERT_EQ(peer.Ask("register LogNames|Pumpe|" + ToUtf8(there.name())), "0");

    ASSERT_EQ(peer.Ask("set Pumpe|Station|2"), "0");

    EXPECT_TRUE(there.Await());
    EXPECT_FALSE(here.IsSet());
}

TEST_F(AnnouncedChange, OfAnotherProcessIsSeenByAnEnumeration)
{
    Peer peer(L"notify_peer.exe", roots.registry());
    wchar_t name[260];
    std::uint32_t length = 260;
    ASSERT_EQ(library.LogNameGetEnumBL(1, name, &length), PGSP_ERR_NO_MORE_ITEMS);

    ASSERT_EQ(peer.Ask("create " + ToUtf8(roots.logName(L"Presse"))), "done");

    EXPECT_TRUE(Eventually([&] {
        length = 260;
        return library.LogNameGetEnumBL(1, name, &length) == PGSP_OK;
    }));
}

} // namespace
} // namespace norvepa::test
