#include "NotifyScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// Full access for everyone, but for the right to set the event.
constexpr wchar_t NobodyMaySetIt[] = L"D:(D;;0x0002;;;WD)(A;;0x1f0001;;;WD)";

class DeadEvent : public NotifyScene
{
};

TEST_F(DeadEvent, IsDroppedWhenItsOwnerHasClosedIt)
{
    const NamedEvent living;
    NamedEvent dead;
    Register(L"LogNames", nullptr, living);
    Register(L"LogNames", nullptr, dead);
    dead.Close();

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(RegisteredEvents(), ElementsAre(living.name()));
    EXPECT_TRUE(living.IsSet());
}

TEST_F(DeadEvent, IsDroppedWhenItNeverWas)
{
    const NamedEvent living;
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);
    Register(L"LogNames", nullptr, living);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(RegisteredEvents(), ElementsAre(living.name()));
}

TEST_F(DeadEvent, StaysWhileNothingOfItsOwnChanges)
{
    const std::wstring dead = FreshEventName();
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", dead.c_str()), PGSP_OK);

    Announce(L"LogDevices", L"Pumpe");
    Announce(L"LogNames", L"Presse");

    EXPECT_THAT(RegisteredEvents(), ElementsAre(dead));
}

TEST_F(DeadEvent, KeepsNoOtherFromBeingSet)
{
    const NamedEvent second;
    const NamedEvent fourth;
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);
    Register(L"LogNames", nullptr, second);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);
    Register(L"LogNames", nullptr, fourth);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(second.IsSet());
    EXPECT_TRUE(fourth.IsSet());
    EXPECT_THAT(RegisteredEvents(), ElementsAre(second.name(), fourth.name()));
}

TEST_F(DeadEvent, TakesTheListAwayWhenItWasTheLast)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_FALSE(HasList());
}

TEST_F(DeadEvent, MakesItsNameFreeAgain)
{
    const std::wstring name = FreshEventName();
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, name.c_str()), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, name.c_str()), PGSP_ERR_DUPLICATE_EVENT);
    Announce(L"LogNames", L"Pumpe");

    const NamedEvent again(name);
    Register(L"LogNames", nullptr, again);
    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(again.IsSet());
}

TEST_F(DeadEvent, IsOneThatMayNotBeSetToo)
{
    const NamedEvent guarded(FreshEventName(), NobodyMaySetIt);
    const NamedEvent living;
    Register(L"LogNames", nullptr, guarded);
    Register(L"LogNames", nullptr, living);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_FALSE(guarded.IsSet());
    EXPECT_TRUE(living.IsSet());
    EXPECT_THAT(RegisteredEvents(), ElementsAre(living.name()));
}

TEST_F(DeadEvent, IsAnObjectOfAnotherKindToo)
{
    const std::wstring name = FreshEventName();
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
    ASSERT_NE(mutex, nullptr);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, name.c_str()), PGSP_OK);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_FALSE(HasList());
    CloseHandle(mutex);
}

TEST_F(DeadEvent, IsANameThatNoEventCanHaveToo)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"no\\such\\namespace"), PGSP_OK);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_FALSE(HasList());
}

} // namespace
} // namespace norvepa::test
