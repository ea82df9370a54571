#include "SetBusparamsScene.h"

namespace norvepa::test
{
namespace
{

// The way of every protocol but one.
using SetBusparamsRate = SetBusparamsRateScene;

TEST_F(SetBusparamsRate, SetsTheSpeedAndWritesWhatBelongsToIt)
{
    WriteBus({.speed = L"9600", .slotTime = L"100"});

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus({.speed = L"19200", .slotTime = L"200"});
}

TEST_F(SetBusparamsRate, DoesNotLookAtTheDevicesProfile)
{
    for (const wchar_t* const profile : {L"1", L"3", L"none"})
    {
        WriteBus({.speed = L"9600", .profile = profile});

        EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

        ExpectBus({.speed = L"19200", .profile = profile, .slotTime = L"200"});
    }
}

TEST_F(SetBusparamsRate, WritesWhatBelongsToTheSpeedThatIsThere)
{
    WriteBus({.speed = L"9600", .slotTime = L"55"});

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_OK);
    ExpectBus({.speed = L"9600", .slotTime = L"100"});

    ExpectSpeedChangesNothing(L"9600", PGSP_OK);
}

TEST_F(SetBusparamsRate, SetsTheSpeedWhereTheCatalogueSaysItStands)
{
    WriteRates(L"SERIAL", {{L"section", L"NetworkSettings"}, {L"map", L"speed"}});
    const auto device = [](std::wstring_view speed, std::wstring_view slotTime) {
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"1"))
            .Element(L"NetworkSettings", XmlContent().Int(L"speed", speed).Int(L"slot_time", slotTime));
    };
    WriteBus(device(L"9600", L"100"));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus(device(L"19200", L"200"));
}

TEST_F(SetBusparamsRate, LetsTheCataloguesSpeedStandForOneThatTheDeviceLacks)
{
    WriteRates(L"SERIAL", {{L"section", L"LocalSettings"}, {L"default", L"9600"}});
    WriteBus(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"slot_time", L"100")));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectBus(XmlContent().Element(L"LocalSettings",
                                   XmlContent().Int(L"slot_time", L"200").Int(L"baudrate", L"19200")));
}

// Only "L2" itself goes the other way, and that stores a speed which no board takes.
TEST_F(SetBusparamsRate, IsTheWayOfAllProtocolsThatOnlyResembleTheOther)
{
    for (const wchar_t* const protocol : {L"l2", L" L2", L"L2 ", L"L22", L"PL2", L""})
    {
        WriteRates(protocol);
        store.WriteDevice(L"Presse", Bus({.speed = L"9600", .profile = L"3"}), OurBoard, protocol);
        ExpectSpeedChangesNothing(L"12345", PGSP_PROFILE_NO_VALUE);

        EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK) << ToUtf8(protocol);

        EXPECT_EQ(store.Saved(L"Presse"),
                  MeaningOf(LogDeviceFile(Bus({.speed = L"19200", .profile = L"3", .slotTime = L"200"}),
                                          OurBoard, protocol)));
    }
}

TEST_F(SetBusparamsRate, WorksOnDevicesWithCodedNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Bus({.speed = L"9600"}), OurBoard, L"SERIAL");

        EXPECT_EQ(library.LogDeviceSetBusparamsBL(coded.name, L"19200"), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_EQ(
            store.Saved(coded.fileName),
            MeaningOf(LogDeviceFile(Bus({.speed = L"19200", .slotTime = L"200"}), OurBoard, L"SERIAL")));
    }
}

} // namespace
} // namespace norvepa::test
