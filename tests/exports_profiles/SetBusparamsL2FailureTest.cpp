#include "SetBusparamsScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

class SetBusparamsL2Failure : public SetBusparamsL2Scene
{
protected:
    // What a new speed answers for a device like this, which then has its old one again.
    void ExpectOldSpeedAgain(const XmlContent& device, std::int32_t result,
                             const wchar_t* speed = L"19200") const
    {
        WriteBus(device);

        EXPECT_EQ(SetSpeed(speed), result);

        ExpectBus(device);
    }
    void ExpectOldSpeedAgain(const BusSettings& settings, std::int32_t result,
                             const wchar_t* speed = L"19200") const
    {
        ExpectOldSpeedAgain(Bus(settings), result, speed);
    }
};

TEST_F(SetBusparamsL2Failure, OfASpeedThatTheProfileDoesNotKnowPutsTheOldOneBack)
{
    ExpectOldSpeedAgain({.speed = L"9600"}, PGSP_PROFILE_NO_VALUE, L"93750");
    ExpectOldSpeedAgain({.speed = L"9600"}, PGSP_PROFILE_NO_VALUE, L"");
}

TEST_F(SetBusparamsL2Failure, OfASpeedFromWhichNothingFollowsPutsTheOldOneBack)
{
    ExpectOldSpeedAgain({.speed = L"9600"}, PGSP_PROFILE_NO_VALUE, L"45450");
}

TEST_F(SetBusparamsL2Failure, OfAProfileThatTheProtocolDoesNotKnowPutsTheOldSpeedBack)
{
    ExpectOldSpeedAgain({.profile = L"2"}, PGSP_PROFILE_NO_VALUE);
    ExpectOldSpeedAgain({.profile = L"4"}, PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetBusparamsL2Failure, OfADeviceWithoutAProfilePutsTheOldSpeedBack)
{
    ExpectOldSpeedAgain(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"9600")),
                        PGSP_ERR_PARAM_NOT_FOUND);
}

// The room that a value is given on the way.
TEST_F(SetBusparamsL2Failure, OfAProfileOf256CharactersIsThatOfNone)
{
    ExpectOldSpeedAgain({.profile = std::wstring(256, L'1')}, PGSP_ERR_PARAM_NOT_FOUND);
    ExpectOldSpeedAgain({.profile = std::wstring(255, L'1')}, PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetBusparamsL2Failure, OfAValueThatIsRefusedKeepsTheOthersThatWereWritten)
{
    WriteBus({.speed = L"9600", .slotTime = L"100", .retries = L"1"});

    EXPECT_EQ(SetSpeed(L"500000"), PGSP_PROFILE_NO_VALUE);

    ExpectBus({.speed = L"9600", .slotTime = L"100", .retries = L"5"});
}

TEST_F(SetBusparamsL2Failure, LeavesADeviceThatHadNoSpeedWithAnEmptyOne)
{
    const XmlContent settings = XmlContent().Int(L"busparam", L"1");
    WriteBus(XmlContent().Element(L"LocalSettings", settings));

    EXPECT_EQ(SetSpeed(L"45450"), PGSP_PROFILE_NO_VALUE);

    ExpectBus(XmlContent().Element(L"LocalSettings", XmlContent(settings).Int(L"baudrate", L"")));
}

TEST_F(SetBusparamsL2Failure, LeavesADeviceWhoseSpeedIsATextWithASecondOne)
{
    const XmlContent settings = XmlContent().Text(L"baudrate", L"9600").Int(L"busparam", L"2");
    WriteBus(XmlContent().Element(L"LocalSettings", settings));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE);

    ExpectBus(XmlContent().Element(L"LocalSettings", XmlContent(settings).Int(L"baudrate", L"9600")));
}

TEST_F(SetBusparamsL2Failure, OfNoNumberLeavesADeviceThatHadNoSpeedWithAnEmptyOne)
{
    const XmlContent settings = XmlContent().Int(L"busparam", L"1");
    WriteBus(XmlContent().Element(L"LocalSettings", settings));

    EXPECT_EQ(SetSpeed(L"fast"), PGSP_ERR_INVALID_PARAMETERS);

    ExpectBus(XmlContent().Element(L"LocalSettings", XmlContent(settings).Int(L"baudrate", L"")));
}

TEST_F(SetBusparamsL2Failure, OfNoNumberLeavesADeviceWhoseSpeedIsATextWithASecondOne)
{
    const XmlContent settings = XmlContent().Text(L"baudrate", L"9600").Int(L"busparam", L"1");
    WriteBus(XmlContent().Element(L"LocalSettings", settings));

    EXPECT_EQ(SetSpeed(L"fast"), PGSP_ERR_INVALID_PARAMETERS);

    ExpectBus(XmlContent().Element(L"LocalSettings", XmlContent(settings).Int(L"baudrate", L"9600")));
}

// The old one can't be written back: it isn't a number.
TEST_F(SetBusparamsL2Failure, LeavesTheNewSpeedWhereTheOldOneWasNoNumber)
{
    const auto device = [](std::wstring_view speed) {
        return XmlContent().Element(L"LocalSettings",
                                    XmlContent().Int(L"baudrate", speed).Int(L"busparam", L"2"));
    };
    WriteBus(device(L"abc"));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE);

    ExpectBus(device(L"19200"));
}

TEST_F(SetBusparamsL2Failure, LeavesTheNewSpeedBesideATextThatIsNoNumber)
{
    const XmlContent settings = XmlContent().Text(L"baudrate", L"abc").Int(L"busparam", L"2");
    WriteBus(XmlContent().Element(L"LocalSettings", settings));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE);

    ExpectBus(XmlContent().Element(L"LocalSettings", XmlContent(settings).Int(L"baudrate", L"19200")));
}

TEST_F(SetBusparamsL2Failure, OfTheSpeedThatIsThereChangesNothing)
{
    WriteBus({.speed = L"9600", .profile = L"2"});
    ExpectSpeedChangesNothing(L"9600", PGSP_PROFILE_NO_VALUE);

    WriteBus({.speed = L"93750", .profile = L"1"});
    ExpectSpeedChangesNothing(L"93750", PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetBusparamsL2Failure, OfADeviceWithoutTheSectionChangesNothing)
{
    WriteBus(XmlContent()
                 .Element(L"NetworkSettings", XmlContent().Int(L"baudrate", L"9600"))
                 .Element(L"SpareSection", XmlContent().Text(L"busparam", L"3")));

    ExpectSpeedChangesNothing(L"19200", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetBusparamsL2Failure, WithoutAProtocolPutsTheOldSpeedBack)
{
    DeleteFileW(roots.protocol(L"L2").c_str());

    ExpectOldSpeedAgain(Spare(XmlContent().Text(L"busparam", L"1"))
                            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"9600")),
                        PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetBusparamsL2Failure, WithoutTheProgramFolderPutsTheOldSpeedBack)
{
    store.TakeProgramFolderAway();

    ExpectOldSpeedAgain({.profile = L"1"}, PGSP_PROFILE_NO_VALUE);
}

// It is the catalogue that says where a device's profile stands; where it can't, the spare section is meant.
TEST_F(SetBusparamsL2Failure, WithoutTheProgramFolderSeesTheUsersOwnProfileInTheSpareSectionAlone)
{
    const auto device = [](std::wstring_view speed) {
        return Spare(XmlContent().Text(L"busparam", L"3"))
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", speed));
    };
    store.TakeProgramFolderAway();

    ExpectOldSpeedAgain({.profile = L"3"}, PGSP_PROFILE_NO_VALUE);
    WriteBus(device(L"9600"));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus(device(L"19200"));
}

TEST_F(SetBusparamsL2Failure, WithoutComIsThatOfTheProfile)
{
    WriteBus({.speed = L"9600", .profile = L"1"});

    OnFreshThread([&] {
        EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectBus({.speed = L"9600", .profile = L"1"});
}

TEST_F(SetBusparamsL2Failure, WithoutComIsNoneUnderTheUsersOwnProfile)
{
    WriteBus({.speed = L"9600", .profile = L"3"});

    OnFreshThread([&] {
        EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectBus({.speed = L"19200", .profile = L"3"});
}

TEST_F(SetBusparamsL2Failure, OfADamagedFileLeavesItAsItIs)
{
    WriteBytes(roots.logDevice(L"Presse"), "<LogDevice DeviceID='AFK110' CP_TYPE='L2'><LocalSettings>");

    ExpectSpeedChangesNothing(L"19200", PGSP_ERR_CANT_LOAD_XML_FILE);
}

// A change that can't be saved is no failure.
TEST_F(SetBusparamsL2Failure, IsNoneForAFileInUse)
{
    WriteBus({.profile = L"3"});
    const OpenFile inUse(roots.logDevice(L"Presse"));

    ExpectSpeedChangesNothing(L"19200", PGSP_OK);
}

} // namespace
} // namespace norvepa::test
