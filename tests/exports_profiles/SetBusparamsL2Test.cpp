#include "SetBusparamsScene.h"

namespace norvepa::test
{
namespace
{

using SetBusparamsL2 = SetBusparamsL2Scene;

TEST_F(SetBusparamsL2, StoresTheSpeedAndAppliesTheProfileAnew)
{
    WriteBus({.speed = L"9600", .slotTime = L"100"});

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus({.speed = L"19200", .slotTime = L"200"});
}

TEST_F(SetBusparamsL2, ChangesTheSpeedAloneUnderTheUsersOwnProfile)
{
    WriteBus({.speed = L"9600", .profile = L"3"});

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus({.speed = L"19200", .profile = L"3"});
}

TEST_F(SetBusparamsL2, KnowsTheUsersOwnProfileByItsExactText)
{
    for (const wchar_t* const profile : {L"03", L" 3", L"3 ", L"3/User", L"33", L"+3"})
    {
        WriteBus({.profile = profile});

        EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE) << ToUtf8(profile);

        ExpectBus({.profile = profile});
    }
}

TEST_F(SetBusparamsL2, LetsTheCataloguesProfileStandForOneThatTheDeviceLacks)
{
    store.WriteProtocol(
        Catalogue().Parameter(L"busparam", {{L"section", L"LocalSettings"}, {L"default", L"3"}}), L"L2");
    const auto device = [](std::wstring_view speed) {
        return XmlContent().Element(L"LocalSettings", XmlContent().Int(L"baudrate", speed));
    };
    WriteBus(device(L"9600"));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus(device(L"19200"));
}

TEST_F(SetBusparamsL2, AppliesTheProfileAgainForTheSpeedThatIsThere)
{
    WriteBus({.speed = L"9600", .slotTime = L"55"});

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_OK);

    ExpectBus({.speed = L"9600", .slotTime = L"100"});
}

TEST_F(SetBusparamsL2, WritesNothingWhenAllIsAsItShouldBe)
{
    WriteBus({.speed = L"9600", .slotTime = L"100"});
    ExpectSpeedChangesNothing(L"9600", PGSP_OK);

    WriteBus({.speed = L"19200", .profile = L"3"});
    ExpectSpeedChangesNothing(L"19200", PGSP_OK);
}

TEST_F(SetBusparamsL2, AsksNoCatalogueWhetherTheSpeedIsAllowed)
{
    WriteBus({.profile = L"3"});

    for (const wchar_t* const speed : {L"12345", L"-1", L"0", L"", L"99999999999999999999"})
    {
        EXPECT_EQ(SetSpeed(speed), PGSP_OK) << ToUtf8(speed);
        ExpectBus({.speed = speed, .profile = L"3"});
    }
}

TEST_F(SetBusparamsL2, StoresANumberAsItIsWritten)
{
    for (const std::wstring speed : {L" 9600", L"+5", L"\t 7", L"0009600", L"-0"})
    {
        WriteBus({.speed = L"19200", .profile = L"3"});

        EXPECT_EQ(SetSpeed(speed), PGSP_OK) << ToUtf8(speed);

        EXPECT_THAT(store.Bytes(L"Presse"), testing::HasSubstr(">" + ToUtf8(speed) + "</"));
    }
}

TEST_F(SetBusparamsL2, StoresNumbersOnly)
{
    for (const wchar_t* const profile : {L"1", L"3"})
    {
        WriteBus({.profile = profile});

        for (const wchar_t* const speed : {L"fast", L"12a", L"9600 ", L"9.6", L"0x10", L"max", L"default"})
        {
            ExpectSpeedChangesNothing(speed, PGSP_ERR_INVALID_PARAMETERS);
        }
    }
}

TEST_F(SetBusparamsL2, MakesASpeedThatIsNotThere)
{
    WriteBus(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"busparam", L"3")));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus(XmlContent().Element(L"LocalSettings",
                                   XmlContent().Int(L"busparam", L"3").Int(L"baudrate", L"19200")));
}

TEST_F(SetBusparamsL2, StoresTheSpeedIntoOneSectionWhateverTheCatalogueSays)
{
    store.WriteProtocol(
        Catalogue().Parameter(L"baudrate",
                              {{L"type", L"string"}, {L"section", L"NetworkSettings"}, {L"map", L"speed"}}),
        L"L2");
    const auto device = [](std::wstring_view speed) {
        return XmlContent()
            .Element(L"DeviceHeader", XmlContent().Int(L"baudrate", L"1"))
            .Element(L"NetworkSettings", XmlContent().Text(L"baudrate", L"2").Text(L"speed", L"3"))
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", speed).Int(L"speed", L"4"))
            .Element(L"SpareSection", XmlContent().Text(L"busparam", L"3"));
    };
    WriteBus(device(L"9600"));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus(device(L"19200"));
}

TEST_F(SetBusparamsL2, MakesASecondSpeedWhereTheOneThatIsThereIsNoNumber)
{
    WriteBus(XmlContent().Element(L"LocalSettings",
                                  XmlContent().Text(L"baudrate", L"9600").Int(L"busparam", L"3")));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus(XmlContent().Element(
        L"LocalSettings",
        XmlContent().Text(L"baudrate", L"9600").Int(L"busparam", L"3").Int(L"baudrate", L"19200")));
}

TEST_F(SetBusparamsL2, AppliesAProfileThatGoesByAnotherParameter)
{
    store.WriteProtocol(
        Catalogue().Parameter(L"busparam", {{L"section", L"LocalSettings"}},
                              Profiles({{L"2", SubParameter(L"cable", {{L"copper", SlotTime(L"7")}})}})),
        L"L2");
    const auto device = [](const BusSettings& settings) {
        return Bus(settings).Raw(Spare(XmlContent().Text(L"cable", L"copper")).utf8());
    };
    WriteBus(device({.profile = L"2"}));

    EXPECT_EQ(SetSpeed(L"12345"), PGSP_OK);

    ExpectBus(device({.speed = L"12345", .profile = L"2", .slotTime = L"7"}));
}

} // namespace
} // namespace norvepa::test
