#include "EnumSetProfileScene.h"

#include <string>
#include <string_view>

namespace norvepa::test
{
namespace
{

class EnumSetProfile : public EnumSetProfileScene
{
protected:
    // The protocol with three baud rates, of which the last has no pairs, and the profiles 1 and 3.
    EnumSetProfile()
    {
        const XmlContent rates =
            SubParameter(L"baudrate", {{L"9600", Slot(L"109")}, {L"19200", Slot(L"119")}});
        store.WriteProtocol(
            Catalogue()
                .Parameter(L"baudrate", {},
                           Profiles({{L"9600", Slot(L"9")}, {L"19200", Slot(L"19")}, {L"500000"}}))
                .Parameter(L"busparam", {}, Profiles({{L"1", rates}, {L"3", Slot(L"3")}})));
        WriteEntries(Device(L"0", L"9600", L"before"));
    }

    [[nodiscard]] static XmlContent Slot(std::wstring_view value)
    {
        return XmlContent().Text(L"slot", value);
    }

    [[nodiscard]] static XmlContent Device(std::wstring_view busparam, std::wstring_view baudrate,
                                           std::wstring_view slot)
    {
        return XmlContent()
            .Text(L"busparam", busparam)
            .Text(L"baudrate", baudrate)
            .Text(L"slot", slot)
            .Text(L"note", L"mine");
    }

    // The device's one choice is this baud rate.
    [[nodiscard]] static XmlContent Rate(std::wstring_view baudrate)
    {
        return XmlContent().Text(L"baudrate", baudrate);
    }
};

TEST_F(EnumSetProfile, SetsTheValueAndWritesItsPairs)
{
    EXPECT_EQ(Choose(L"baudrate", L"19200"), PGSP_OK);
    ExpectEntries(Device(L"0", L"19200", L"19"));

    EXPECT_EQ(Choose(L"busparam", L"3"), PGSP_OK);
    ExpectEntries(Device(L"3", L"19200", L"3"));
}

TEST_F(EnumSetProfile, SetsTheValueAndWritesThePairsOfItsSubProfile)
{
    EXPECT_EQ(Choose(L"busparam", L"1"), PGSP_OK);
    ExpectEntries(Device(L"1", L"9600", L"109"));

    EXPECT_EQ(Choose(L"baudrate", L"19200"), PGSP_OK);
    ExpectEntries(Device(L"1", L"19200", L"19"));
}

TEST_F(EnumSetProfile, TellsItsParameterInAnyCase)
{
    EXPECT_EQ(Choose(L"BAUDRATE", L"19200"), PGSP_OK);
    EXPECT_EQ(Choose(L"BusParam", L"1"), PGSP_OK);

    ExpectEntries(Device(L"1", L"19200", L"119"));
}

TEST_F(EnumSetProfile, WritesThePairsOfAValueThatIsThereAlready)
{
    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_OK);

    ExpectEntries(Device(L"0", L"9600", L"9"));
}

TEST_F(EnumSetProfile, GoesByWhatIsStoredForAKeyword)
{
    store.WriteBoard(Catalogue().Parameter(L"busparam", {{L"type", L"int"}, {L"max", L"3"}}));
    WriteEntries(XmlContent().Int(L"busparam", L"0"));

    EXPECT_EQ(Choose(L"busparam", L"max"), PGSP_OK);

    ExpectEntries(XmlContent().Int(L"busparam", L"3").Text(L"slot", L"3"));
}

TEST_F(EnumSetProfile, LetsTheDefaultBeTheOldValue)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"default", L"500000"}}));
    WriteEntries({});

    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_OK);

    ExpectEntries(Rate(L"9600").Text(L"slot", L"9"));
}

TEST_F(EnumSetProfile, NeedsAnOldValue)
{
    WriteEntries(XmlContent().Text(L"note", L"mine"));

    ExpectChooseChangesNothing(L"baudrate", L"9600", PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Choose(L"baudrate", L"9600", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(EnumSetProfile, NeedsAnOldValueThatCanBeRead)
{
    WriteBytes(roots.logDevice(L"broken"), "no XML");

    EXPECT_EQ(Choose(L"baudrate", L"9600", L"broken"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(store.Bytes(L"broken"), "no XML");
}

TEST_F(EnumSetProfile, TakesAnEmptyOldValueForAValue)
{
    WriteEntries(Rate(L""));

    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_OK);

    ExpectEntries(Rate(L"9600").Text(L"slot", L"9"));
}

TEST_F(EnumSetProfile, NeedsAnOldValueOf255CharactersAtMost)
{
    WriteEntries(Rate(std::wstring(255, L'9')));
    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_OK);
    ExpectEntries(Rate(L"9600").Text(L"slot", L"9"));

    WriteEntries(Rate(std::wstring(256, L'9')));
    ExpectChooseChangesNothing(L"baudrate", L"9600", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(EnumSetProfile, NeedsAValueThatMayBeSet)
{
    store.WriteBoard(
        Catalogue()
            .Parameter(L"busparam", {{L"type", L"int"}, {L"min", L"0"}, {L"max", L"2"}})
            .Parameter(L"baudrate", {{L"type", L"int"}}, XmlContent().ValueCollection({L"19200"})));

    ExpectChooseChangesNothing(L"busparam", L"3", PGSP_PROFILE_NO_VALUE);
    ExpectChooseChangesNothing(L"baudrate", L"9600", PGSP_PROFILE_NO_VALUE);
}

TEST_F(EnumSetProfile, NeedsAParameterThatMayBeSet)
{
    ExpectChooseChangesNothing(L"DeviceID", L"AFK220", PGSP_PROFILE_NO_VALUE);
    ExpectChooseChangesNothing(L"CP_TYPE", L"L2", PGSP_PROFILE_NO_VALUE);
}

// Without CP_TYPE no profile is looked for, and nothing is undone.
TEST_F(EnumSetProfile, KeepsTheNewValueForADeviceWithoutAProtocol)
{
    const auto file = [](const XmlContent& entries) {
        return XmlFile(L"LogDevice", {{L"DeviceID", L"AFK110"}}, Spare(entries));
    };
    WriteBytes(roots.logDevice(L"Presse"), file(Device(L"0", L"9600", L"before")));

    EXPECT_EQ(Choose(L"baudrate", L"19200"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(Choose(L"busparam", L"3"), PGSP_PROFILE_NO_VALUE);

    EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(file(Device(L"3", L"19200", L"before"))));
}

// The protocol is asked for by the subdevice's name, which no file has.
TEST_F(EnumSetProfile, KeepsTheNewValueOfASubdevice)
{
    const auto device = [](std::wstring_view baudrate) {
        return Spare(Rate(L"9600")).Subdevice(L"Ventil", Rate(baudrate));
    };
    store.WriteDevice(L"Presse", device(L"9600"));

    EXPECT_EQ(Choose(L"baudrate", L"19200", L"Presse\\subdevices\\Ventil"), PGSP_PROFILE_NO_VALUE);

    EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(device(L"19200"))));
}

TEST_F(EnumSetProfile, IsOfTheProtocolThatTheDeviceNames)
{
    const auto slots = [](std::wstring_view slot) {
        return Catalogue().Parameter(L"baudrate", {}, Profiles({{L"9600", Slot(slot)}}));
    };
    store.WriteProtocol(slots(L"of L2"), L"L2");
    store.WriteDevice(L"Pumpe", Spare(Rate(L"1")), OurBoard, L"L2");
    store.WriteDevice(L"Silo", Spare(Rate(L"1")), OurBoard, L"Automation-OnlineAccess-PT-L2");

    for (const wchar_t* const device : {L"Pumpe", L"Silo"})
    {
        EXPECT_EQ(Choose(L"baudrate", L"9600", device), PGSP_OK);

        std::wstring slot;
        EXPECT_EQ(LogDeviceGetValue(device, L"slot", &slot), PGSP_OK);
        EXPECT_EQ(slot, L"of L2");
    }
}

TEST_F(EnumSetProfile, ReachesDevicesWithCodedNames)
{
    store.WriteDevice(L"Presse (nmbr)3#2f50#25", Spare(Rate(L"1")));

    EXPECT_EQ(Choose(L"baudrate", L"9600", L"Presse #3/50%"), PGSP_OK);

    EXPECT_EQ(store.Saved(L"Presse (nmbr)3#2f50#25"),
              MeaningOf(LogDeviceFile(Spare(Rate(L"9600").Text(L"slot", L"9")))));
}

TEST_F(EnumSetProfile, NeedsItsArguments)
{
    EXPECT_EQ(Choose(L"baudrate", L"19200", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Choose(L"baudrate", L"19200", L""), PGSP_ERR_INVALID_PARAMETERS);
    ExpectChooseChangesNothing(nullptr, L"19200", PGSP_ERR_INVALID_PARAMETERS);
    ExpectChooseChangesNothing(L"", L"19200", PGSP_ERR_INVALID_PARAMETERS);
    ExpectChooseChangesNothing(L"baudrate", nullptr, PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Choose(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(EnumSetProfile, TestsItsArgumentsAheadOfTheFolders)
{
    store.TakeDataFolderAway();
    store.TakeProgramFolderAway();

    EXPECT_EQ(Choose(L"baudrate", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Choose(L"baudrate", L"19200"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(EnumSetProfile, RefusesAnEmptyValueOnlyForItsProfile)
{
    EXPECT_EQ(Choose(L"baudrate", L""), PGSP_PROFILE_NO_VALUE);

    ExpectEntries(Device(L"0", L"9600", L"before"));
}

TEST_F(EnumSetProfile, NeedsTheDataFolder)
{
    store.TakeDataFolderAway();

    ExpectChooseChangesNothing(L"baudrate", L"19200", PGSP_ERR_PARAM_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
