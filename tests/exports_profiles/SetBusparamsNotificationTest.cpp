#include "SetBusparamsScene.h"
#include "exports_device/Registrants.h"

#include <cstddef>

namespace norvepa::test
{
namespace
{

// How often whoever registered for the device has been told, and nobody else.
template <typename Scene>
class Told : public WithRegistrants<Scene>
{
protected:
    void ExpectPressTold(std::size_t times) const
    {
        EXPECT_TRUE(this->IsTold(this->press));
        EXPECT_TRUE(this->IsTold(this->all));
        EXPECT_FALSE(this->IsTold(this->pump));
        EXPECT_FALSE(this->IsTold(this->names));
        EXPECT_FALSE(this->IsTold(this->templates));
        EXPECT_EQ(this->workers.count(), times);
    }
};

using SetBusparamsL2Notification = Told<SetBusparamsL2Scene>;
using SetBusparamsRateNotification = Told<SetBusparamsRateScene>;

TEST_F(SetBusparamsL2Notification, IsNotGivenOfTheSpeed)
{
    WriteBus({.speed = L"9600", .profile = L"3"});
    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    WriteBus({.speed = L"9600", .profile = L"1", .slotTime = L"200"});
    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);
    ExpectBus({.speed = L"19200", .profile = L"1", .slotTime = L"200"});

    ExpectNobodyTold();
}

TEST_F(SetBusparamsL2Notification, IsGivenOfEachValueThatTheProfileChanges)
{
    WriteBus({.speed = L"9600", .slotTime = L"100"});

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectPressTold(1);
}

TEST_F(SetBusparamsL2Notification, IsGivenOfWhatWasWrittenAheadOfAFailureAlone)
{
    WriteBus({.speed = L"9600", .retries = L"1"});

    EXPECT_EQ(SetSpeed(L"500000"), PGSP_PROFILE_NO_VALUE);

    ExpectPressTold(1);
}

TEST_F(SetBusparamsL2Notification, IsNotGivenOfASpeedThatIsPutBack)
{
    WriteBus({.speed = L"9600"});

    EXPECT_EQ(SetSpeed(L"93750"), PGSP_PROFILE_NO_VALUE);

    ExpectNobodyTold();
}

TEST_F(SetBusparamsRateNotification, IsGivenOfTheSpeedAndOfEachValueThatItsProfileChanges)
{
    WriteBus({.speed = L"9600", .slotTime = L"100"});

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectPressTold(2);
}

TEST_F(SetBusparamsRateNotification, IsNotGivenOfWhatStaysAsItIs)
{
    WriteBus({.speed = L"19200", .slotTime = L"200"});

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(SetBusparamsRateNotification, IsNotGivenOfASpeedThatIsRefused)
{
    WriteBus({.speed = L"9600"});

    EXPECT_EQ(SetSpeed(L"12345"), PGSP_PROFILE_NO_VALUE);

    ExpectNobodyTold();
}

TEST_F(SetBusparamsRateNotification, IsGivenOfASpeedAndAgainWhenItIsPutBack)
{
    WriteBus({.speed = L"9600"});

    EXPECT_EQ(SetSpeed(L"93750"), PGSP_PROFILE_NO_VALUE);

    ExpectPressTold(2);
}

TEST_F(SetBusparamsRateNotification, IsGivenOfTheRotationTimeThatFollows)
{
    WriteRates(L"MPI");
    Write(Bus({.speed = L"19200", .slotTime = L"200"})
              .Raw(Spare(XmlContent().Int(L"highest_adr", L"126").Text(L"ttr", L"1")).utf8()));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);
    ExpectPressTold(1);

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);
    EXPECT_FALSE(IsTold(press));
}

} // namespace
} // namespace norvepa::test
