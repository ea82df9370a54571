#include "SetBusparamsScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

class SetBusparamsRateFailure : public SetBusparamsRateScene
{
protected:
    // What a new speed answers for our device, which then has its old one again.
    void ExpectOldSpeedAgain(const wchar_t* speed) const
    {
        WriteBus({.speed = L"9600"});

        EXPECT_EQ(SetSpeed(speed), PGSP_PROFILE_NO_VALUE);

        ExpectBus({.speed = L"9600"});
    }
};

TEST_F(SetBusparamsRateFailure, OfASpeedThatTheBoardRefusesChangesNothing)
{
    WriteBus({.speed = L"9600"});

    for (const wchar_t* const speed : {L"12345", L"", L"fast", L"19200/fast", L"max", L"default"})
    {
        ExpectSpeedChangesNothing(speed, PGSP_PROFILE_NO_VALUE);
    }
}

TEST_F(SetBusparamsRateFailure, OfASpeedThatTheProtocolDoesNotKnowPutsTheOldOneBack)
{
    ExpectOldSpeedAgain(L"93750");
}

TEST_F(SetBusparamsRateFailure, OfASpeedFromWhichNothingFollowsPutsTheOldOneBack)
{
    ExpectOldSpeedAgain(L"45450");
}

TEST_F(SetBusparamsRateFailure, OfAValueThatIsRefusedKeepsTheOthersThatWereWritten)
{
    WriteBus({.speed = L"9600", .slotTime = L"100", .retries = L"1"});

    EXPECT_EQ(SetSpeed(L"500000"), PGSP_PROFILE_NO_VALUE);

    ExpectBus({.speed = L"9600", .slotTime = L"100", .retries = L"5"});
}

// It is put back as a caller would put it back.
TEST_F(SetBusparamsRateFailure, LeavesTheNewSpeedWhereTheBoardRefusesTheOldOne)
{
    WriteBus({.speed = L"12345"});

    EXPECT_EQ(SetSpeed(L"45450"), PGSP_PROFILE_NO_VALUE);

    ExpectBus({.speed = L"45450"});
}

TEST_F(SetBusparamsRateFailure, LeavesADeviceWithTheCataloguesSpeedThatItLacked)
{
    WriteRates(L"SERIAL", {{L"section", L"LocalSettings"}, {L"default", L"9600"}});
    WriteBus(XmlContent().Element(L"LocalSettings", XmlContent()));

    EXPECT_EQ(SetSpeed(L"45450"), PGSP_PROFILE_NO_VALUE);

    ExpectBus(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"9600")));
}

TEST_F(SetBusparamsRateFailure, OfADeviceWithoutASpeedChangesNothing)
{
    WriteBus(XmlContent()
                 .Element(L"LocalSettings", XmlContent().Int(L"busparam", L"1"))
                 .Element(L"NetworkSettings", XmlContent().Int(L"baudrate", L"9600")));

    ExpectSpeedChangesNothing(L"19200", PGSP_ERR_PARAM_NOT_FOUND);
}

// The room that a value is given on the way.
TEST_F(SetBusparamsRateFailure, OfASpeedOf256CharactersIsThatOfNone)
{
    WriteBus({.speed = std::wstring(256, L'1')});
    ExpectSpeedChangesNothing(L"19200", PGSP_ERR_PARAM_NOT_FOUND);

    WriteBus({.speed = std::wstring(255, L'1')});
    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);
    ExpectBus({.speed = L"19200", .slotTime = L"200"});
}

TEST_F(SetBusparamsRateFailure, WithoutAProtocolPutsTheOldSpeedBack)
{
    DeleteFileW(roots.protocol(L"SERIAL").c_str());

    ExpectOldSpeedAgain(L"19200");
}

TEST_F(SetBusparamsRateFailure, WithoutTheProgramFolderPutsTheOldSpeedBack)
{
    store.TakeProgramFolderAway();

    ExpectOldSpeedAgain(L"19200");
    ExpectOldSpeedAgain(L"12345");
}

TEST_F(SetBusparamsRateFailure, WithoutComIsThatOfTheProfile)
{
    OnFreshThread([&] {
        WriteBus({.speed = L"9600"});
        EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectBus({.speed = L"9600"});
}

TEST_F(SetBusparamsRateFailure, OfADamagedFileLeavesItAsItIs)
{
    const std::string settings =
        XmlContent().Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"9600")).utf8();
    WriteBytes(roots.logDevice(L"Presse"), "<LogDevice DeviceID='AFK110' CP_TYPE='SERIAL'>" + settings);

    ExpectSpeedChangesNothing(L"19200", PGSP_PROFILE_NO_VALUE);
}

// A change that can't be saved is no failure, and the profile is that of the speed which stayed.
TEST_F(SetBusparamsRateFailure, IsNoneForAFileInUse)
{
    WriteBus({.speed = L"9600"});
    const OpenFile inUse(roots.logDevice(L"Presse"));

    ExpectSpeedChangesNothing(L"19200", PGSP_OK);
}

} // namespace
} // namespace norvepa::test
