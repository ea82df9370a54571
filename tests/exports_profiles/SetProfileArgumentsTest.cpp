#include "DirectProfileScene.h"
#include "support/FreshThread.h"
#include "support/XmlMeaning.h"

#include <string>

namespace norvepa::test
{
namespace
{

class SetProfileArguments : public DirectProfileScene
{
protected:
    SetProfileArguments()
    {
        WriteProfile(Pairs());
        WriteEntries(Chosen());
    }

    [[nodiscard]] static XmlContent Pairs() { return XmlContent().Text(L"slot", L"100"); }

    [[nodiscard]] std::int32_t SetProfileOf(const wchar_t* device) const
    {
        return library.PGSP_LogDeviceSetProfileRBL(device, L"MPI", L"baudrate");
    }

    void ExpectNullIsRefused() const
    {
        const auto set = library.PGSP_LogDeviceSetProfileRBL;

        EXPECT_EQ(set(nullptr, L"MPI", L"baudrate"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"Presse", nullptr, L"baudrate"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"Presse", L"MPI", nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    }

    void ExpectBothChangeNothing(std::int32_t result) const
    {
        for (const wchar_t* const choice : Choices)
        {
            ExpectSetProfileChangesNothing(choice, result);
        }
    }
};

TEST_F(SetProfileArguments, AreAllNeeded)
{
    ExpectNullIsRefused();

    ExpectEntries(Chosen());
}

TEST_F(SetProfileArguments, AreTestedAheadOfTheFolders)
{
    store.TakeDataFolderAway();
    store.TakeProgramFolderAway();

    ExpectNullIsRefused();
}

// No value is found for an empty name, and that is what is told.
TEST_F(SetProfileArguments, AreNotRefusedForBeingEmpty)
{
    EXPECT_EQ(SetProfileOf(L""), PGSP_PROFILE_NO_VALUE);
    ExpectSetProfileChangesNothing(L"", PGSP_PROFILE_NO_VALUE);
    ExpectSetProfileChangesNothing(L"baudrate", PGSP_PROFILE_NO_VALUE, L"");
    EXPECT_EQ(library.PGSP_LogDeviceSetProfileRBL(L"", L"", L""), PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetProfileArguments, MayNameTheProtocolWithoutAName)
{
    store.WriteProtocol(
        Catalogue().Parameter(L"baudrate", {}, Profiles({{L"187500", XmlContent().Text(L"gap", L"2")}})),
        L"");

    EXPECT_EQ(SetProfile(L"baudrate", L""), PGSP_OK);

    ExpectEntries(Chosen(XmlContent().Text(L"gap", L"2")));
}

TEST_F(SetProfileArguments, MayNameTheProtocolWithItsPrefix)
{
    EXPECT_EQ(SetProfile(L"baudrate", L"Automation-OnlineAccess-PT-MPI"), PGSP_OK);

    ExpectEntries(Chosen(Pairs()));
}

TEST_F(SetProfileArguments, NeedThePrefixAsItIsWritten)
{
    ExpectSetProfileChangesNothing(L"baudrate", PGSP_PROFILE_NO_VALUE, L"AUTOMATION-OnlineAccess-PT-MPI");
    ExpectSetProfileChangesNothing(L"baudrate", PGSP_PROFILE_NO_VALUE, L"*MPI");
    ExpectSetProfileChangesNothing(L"baudrate", PGSP_PROFILE_NO_VALUE, L"Automation-OnlineAccess-PT-");
}

TEST_F(SetProfileArguments, MayNameAnotherProtocolThanTheDevice)
{
    store.WriteProtocol(
        Catalogue().Parameter(L"baudrate", {}, Profiles({{L"187500", XmlContent().Text(L"gap", L"2")}})),
        L"L2");

    EXPECT_EQ(SetProfile(L"baudrate", L"L2"), PGSP_OK);

    ExpectEntries(Chosen(XmlContent().Text(L"gap", L"2")));
}

TEST_F(SetProfileArguments, NeedAProtocolThatCanBeRead)
{
    WriteBytes(roots.protocol(L"broken"), "<Profile><Constraints></Profile>");
    WriteBytes(roots.protocol(L"bare"), ProtocolFile({}));

    for (const wchar_t* const protocol : {L"gone", L"broken", L"bare", L"..\\..\\x", L"?<>|"})
    {
        ExpectSetProfileChangesNothing(L"baudrate", PGSP_PROFILE_NO_VALUE, protocol);
        ExpectSetProfileChangesNothing(L"busparam", PGSP_PROFILE_NO_VALUE, protocol);
    }
}

TEST_F(SetProfileArguments, NeedADeviceThatCanBeRead)
{
    WriteBytes(roots.logDevice(L"broken"), "<LogDevice><SpareSection></LogDevice>");
    store.WriteDevice(L"bare", {});

    for (const wchar_t* const device : {L"gone", L"broken", L"bare", L"..\\LogDevices\\gone"})
    {
        EXPECT_EQ(SetProfileOf(device), PGSP_PROFILE_NO_VALUE) << device;
    }

    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml", L"bare.xml", L"broken.xml"));
    EXPECT_EQ(store.Bytes(L"broken"), "<LogDevice><SpareSection></LogDevice>");
}

TEST_F(SetProfileArguments, MeanNoSubdevice)
{
    Write(Spare(Chosen()).Subdevice(L"Ventil", Chosen()));

    EXPECT_EQ(SetProfileOf(L"Presse\\subdevices\\Ventil"), PGSP_PROFILE_NO_VALUE);

    ExpectSaved(Spare(Chosen()).Subdevice(L"Ventil", Chosen()));
}

TEST_F(SetProfileArguments, MayNameDevicesWithCodedNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Spare(Chosen()));

        EXPECT_EQ(SetProfileOf(coded.name), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_EQ(store.Saved(coded.fileName), MeaningOf(LogDeviceFile(Spare(Chosen(Pairs())))));
    }
}

TEST_F(SetProfileArguments, MayNameATemporaryDevice)
{
    const wchar_t* const temporary = L"PGSP_TEMP_LOG_DEVICE____001";
    store.WriteDevice(temporary, Spare(Chosen()));

    EXPECT_EQ(SetProfileOf(temporary), PGSP_OK);

    EXPECT_EQ(store.Saved(temporary), MeaningOf(LogDeviceFile(Spare(Chosen(Pairs())))));
}

TEST_F(SetProfileArguments, MayBeOfAnyLength)
{
    const std::wstring text(100'000, L'n');

    EXPECT_EQ(SetProfileOf(text.c_str()), PGSP_PROFILE_NO_VALUE);
    ExpectSetProfileChangesNothing(text.c_str(), PGSP_PROFILE_NO_VALUE);
    ExpectSetProfileChangesNothing(L"baudrate", PGSP_PROFILE_NO_VALUE, text.c_str());
}

TEST_F(SetProfileArguments, MeetAValueOfAnyLength)
{
    const std::wstring text(100'000, L'n');
    WriteEntries(XmlContent().Text(L"baudrate", text).Text(L"busparam", text));

    ExpectBothChangeNothing(PGSP_PROFILE_NO_VALUE);
}

// Without the data folder the value is read as empty.
TEST_F(SetProfileArguments, FindNoValueWithoutTheDataFolder)
{
    store.TakeDataFolderAway();

    ExpectBothChangeNothing(PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetProfileArguments, NeedTheProgramFolder)
{
    store.TakeProgramFolderAway();

    ExpectBothChangeNothing(PGSP_ERR_FOLDER_NOT_FOUND);
    ExpectSetProfileChangesNothing(L"slot", PGSP_ERR_FOLDER_NOT_FOUND);
}

// A log device without a name has no value, and that is known first.
TEST_F(SetProfileArguments, NeedNoProgramFolderForALogDeviceWithoutAName)
{
    store.TakeProgramFolderAway();

    EXPECT_EQ(SetProfileOf(L""), PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetProfileArguments, NeedTheProgramFolderAlsoWithoutTheDataFolder)
{
    store.TakeDataFolderAway();
    store.TakeProgramFolderAway();

    ExpectBothChangeNothing(PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(SetProfileArguments, NeedCom)
{
    OnFreshThread([&] { ExpectBothChangeNothing(PGSP_PROFILE_NO_VALUE); });
}

TEST_F(SetProfileArguments, MeanNoOtherParameterThoughTheProtocolHasAProfileForIt)
{
    const XmlContent profiles = Profiles({{L"3", XmlContent().Text(L"gap", L"2")}});
    store.WriteProtocol(Catalogue()
                            .Parameter(L"slot", {}, profiles)
                            .Parameter(L"baudrate2", {}, profiles)
                            .Parameter(L"bus", {}, profiles)
                            .Parameter(L"l4_timeout", {}, profiles)
                            .Parameter(L"CP_TYPE", {}, Profiles({{L"MPI", XmlContent().Text(L"gap", L"2")}})),
                        L"other");
    WriteEntries(XmlContent()
                     .Text(L"slot", L"3")
                     .Text(L"baudrate2", L"3")
                     .Text(L"bus", L"3")
                     .Text(L"l4_timeout", L"3"));

    for (const wchar_t* const parameter :
         {L"slot", L"baudrate2", L"bus", L"l4_timeout", L"CP_TYPE", L"DeviceID", L"unknown", L" baudrate"})
    {
        ExpectSetProfileChangesNothing(parameter, PGSP_PROFILE_NO_VALUE, L"other");
    }
}

} // namespace
} // namespace norvepa::test
