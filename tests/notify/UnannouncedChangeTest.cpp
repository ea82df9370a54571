#include "NotifyScene.h"
#include "notify/SendNotification.h"

namespace norvepa::test
{
namespace
{

class UnannouncedChange : public NotifyScene
{
protected:
    UnannouncedChange() { Register(L"LogDevices", nullptr, event); }

    const NamedEvent event;
};

TEST_F(UnannouncedChange, HasNoFileName)
{
    SendNotificationBL(L"LogDevices", nullptr, L"5");

    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(event.IsSet());
}

TEST_F(UnannouncedChange, HasNoCode)
{
    SendNotificationBL(L"LogDevices", L"Pumpe", nullptr);

    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(event.IsSet());
}

TEST_F(UnannouncedChange, IsThatOfATemporaryLogDevice)
{
    for (const wchar_t* const name :
         {L"PGSP_TEMP_LOG_DEVICE____001", L"PGSP_TEMP_LOG_DEVICE____", L"a PGSP_TEMP_LOG_DEVICE____ b"})
    {
        SendNotificationBL(L"LogDevices", name, L"5");
        SendNotificationBL(L"LogNames", name, L"2");
    }

    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(event.IsSet());
}

TEST_F(UnannouncedChange, IsNotThatOfANameWithAnUnderscoreLess)
{
    Announce(L"LogDevices", L"PGSP_TEMP_LOG_DEVICE___001");

    EXPECT_TRUE(event.IsSet());
}

TEST_F(UnannouncedChange, IsNotThatOfANameInAnotherCase)
{
    Announce(L"LogDevices", L"pgsp_temp_log_device____001");

    EXPECT_TRUE(event.IsSet());
}

TEST_F(UnannouncedChange, IsNotToldByTheFolder)
{
    const NamedEvent other;
    Register(L"PGSP_TEMP_LOG_DEVICE____", nullptr, other);

    Announce(L"PGSP_TEMP_LOG_DEVICE____", L"Pumpe");

    EXPECT_TRUE(other.IsSet());
}

} // namespace
} // namespace norvepa::test
