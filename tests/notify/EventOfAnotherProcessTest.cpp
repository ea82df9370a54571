#include "NotifyScene.h"
#include "support/Peer.h"
#include "support/TemporaryFolder.h"

namespace norvepa::test
{
namespace
{

class EventOfAnotherProcess : public NotifyScene
{
protected:
    // Made by the peer, registered here.
    [[nodiscard]] std::string RegisterEventOfPeer(const std::wstring& name)
    {
        const std::string utf8 = ToUtf8(name);
        EXPECT_EQ(peer.Ask("event " + utf8), "done");
        EXPECT_EQ(RegisterNotification(L"LogDevices", nullptr, name.c_str()), PGSP_OK);
        return utf8;
    }

    RedirectedRegistry registry;
    Peer peer{L"notify_peer.exe", registry};
};

TEST_F(EventOfAnotherProcess, IsSetInTheSession)
{
    const std::string event = RegisterEventOfPeer(FreshEventName());

    peer.Send("await " + event);
    Announce(L"LogDevices", L"Pumpe");

    EXPECT_EQ(peer.Answer(), "set");
}

TEST_F(EventOfAnotherProcess, IsSetInTheWholeMachine)
{
    const std::string event = RegisterEventOfPeer(FreshEventName(L"Global\\"));

    peer.Send("await " + event);
    Announce(L"LogDevices", L"Pumpe");

    EXPECT_EQ(peer.Answer(), "set");
}

TEST_F(EventOfAnotherProcess, IsSetByItsSessionsOwnPrefix)
{
    const std::wstring name = FreshEventName();
    const std::string event = ToUtf8(name);
    ASSERT_EQ(peer.Ask("event " + event), "done");
    ASSERT_EQ(RegisterNotification(L"LogDevices", nullptr, (L"Local\\" + name).c_str()), PGSP_OK);

    peer.Send("await " + event);
    Announce(L"LogDevices", L"Pumpe");

    EXPECT_EQ(peer.Answer(), "set");
}

TEST_F(EventOfAnotherProcess, IsAnotherOneInTheMachineThanInTheSession)
{
    const std::wstring name = FreshEventName();
    const std::string session = RegisterEventOfPeer(name);
    const std::string machine = "Global\\" + session;
    ASSERT_EQ(peer.Ask("event " + machine), "done");

    Announce(L"LogDevices", L"Pumpe");

    EXPECT_EQ(peer.Ask("peek " + machine), "not set");
    EXPECT_EQ(peer.Ask("peek " + session), "set");
}

TEST_F(EventOfAnotherProcess, IsDroppedWhenThatProcessClosesIt)
{
    const std::string event = RegisterEventOfPeer(FreshEventName());
    ASSERT_EQ(peer.Ask("close " + event), "done");

    Announce(L"LogDevices", L"Pumpe");

    EXPECT_FALSE(HasList());
}

TEST_F(EventOfAnotherProcess, IsDroppedWhenThatProcessDies)
{
    static_cast<void>(RegisterEventOfPeer(FreshEventName(L"Global\\")));
    peer.Kill();

    Announce(L"LogDevices", L"Pumpe");

    EXPECT_FALSE(HasList());
}

} // namespace
} // namespace norvepa::test
