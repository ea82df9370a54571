#include "EnumSetProfileScene.h"
#include "norvepa.h"
#include "notify/NotifyRegistration.h"
#include "support/NamedEvent.h"

#include <cstddef>

namespace norvepa::test
{
namespace
{

class EnumSetProfileNotification : public EnumSetProfileScene
{
protected:
    EnumSetProfileNotification()
    {
        EXPECT_EQ(RegisterNotification(L"LogDevices", L"Presse", press.c_str()), PGSP_OK);
    }

    ~EnumSetProfileNotification() override
    {
        workers.Await();
        FreeNotifyRegistrations();
    }

    // By one worker a change.
    void ExpectTold(std::size_t changes) const
    {
        workers.Await();
        EXPECT_EQ(press.IsSet(), changes > 0);
        EXPECT_EQ(workers.count(), changes);
    }

    const NamedEvent press;
};

TEST_F(EnumSetProfileNotification, TellsOfTheValueAndOfEachPair)
{
    WriteProfiles(XmlContent().Text(L"slot", L"9").Text(L"gap", L"2").Text(L"medium", L"copper"));
    WriteEntries(Chosen(L"old"));

    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_OK);

    ExpectTold(3);
}

TEST_F(EnumSetProfileNotification, TellsOfThePairsAloneWhereTheValueStays)
{
    WriteProfiles(XmlContent().Text(L"slot", L"9"));
    WriteEntries(Chosen(L"9600"));

    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_OK);

    ExpectTold(1);
}

TEST_F(EnumSetProfileNotification, TellsOfTheValueThereAndBackAndOfThePairsThatStay)
{
    WriteProfiles(XmlContent().Text(L"slot", L"9").Text(L"DeviceID", L"AFK220"));
    WriteEntries(Chosen(L"old"));

    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_PROFILE_NO_VALUE);

    ExpectTold(3);
}

TEST_F(EnumSetProfileNotification, TellsNobodyOfAChoiceThatChangesNothing)
{
    WriteProfiles(XmlContent().Text(L"medium", L"copper"));
    WriteEntries(Chosen(L"9600"));

    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(Choose(L"busparam", L"2"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(Choose(L"slot", L"2"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Choose(L"DeviceID", L"2"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(Choose(L"baudrate", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    ExpectTold(0);
}

} // namespace
} // namespace norvepa::test
