#include "EnumSetProfileScene.h"

#include <cstddef>
#include <string>

namespace norvepa::test
{
namespace
{

// A choice whose profile isn't there, or can't be written whole.
class EnumSetProfileUndo : public EnumSetProfileScene
{
protected:
    // That the profile's failure is told, and what the file says then.
    void ExpectUndone(const wchar_t* parameter, const wchar_t* value, const XmlContent& entries) const
    {
        EXPECT_EQ(Choose(parameter, value), PGSP_PROFILE_NO_VALUE);

        ExpectEntries(entries);
    }
};

TEST_F(EnumSetProfileUndo, RestoresTheOldValueOfAChoiceWithoutAProfile)
{
    WriteProfiles(XmlContent().Text(L"slot", L"9"));
    WriteEntries(Chosen(L"old", XmlContent().Text(L"slot", L"1")));

    ExpectUndone(L"baudrate", L"19200", Chosen(L"old", XmlContent().Text(L"slot", L"1")));
    ExpectUndone(L"BAUDRATE", L"", Chosen(L"old", XmlContent().Text(L"slot", L"1")));
    ExpectUndone(L"busparam", L"3", Chosen(L"old", XmlContent().Text(L"slot", L"1")));
    ExpectUndone(L"busparam", L"0", Chosen(L"old", XmlContent().Text(L"slot", L"1")));
}

TEST_F(EnumSetProfileUndo, RestoresTheOldValueOfAChoiceWithoutPairs)
{
    WriteProfiles({});
    WriteEntries(Chosen(L"old"));

    ExpectUndone(L"baudrate", L"9600", Chosen(L"old"));
    ExpectUndone(L"busparam", L"1", Chosen(L"old"));
}

TEST_F(EnumSetProfileUndo, RestoresTheOldValueOfAnyOtherParameter)
{
    store.WriteProtocol(
        Catalogue().Parameter(L"medium", {}, Profiles({{L"fibre", XmlContent().Text(L"slot", L"9")}})));
    WriteEntries(Chosen(L"old"));

    ExpectUndone(L"medium", L"fibre", Chosen(L"old"));
}

TEST_F(EnumSetProfileUndo, RestoresTheOldValueWithoutAProtocolsFile)
{
    WriteEntries(Chosen(L"old"));

    ExpectUndone(L"baudrate", L"9600", Chosen(L"old"));
}

TEST_F(EnumSetProfileUndo, RestoresTheOldValueWithoutTheProgramFolder)
{
    WriteEntries(Chosen(L"old"));
    store.TakeProgramFolderAway();

    ExpectUndone(L"baudrate", L"9600", Chosen(L"old"));
}

TEST_F(EnumSetProfileUndo, RestoresTheOldValueAndKeepsThePairsThatAreWritten)
{
    WriteProfiles(XmlContent().Text(L"slot", L"9").Text(L"DeviceID", L"AFK220").Text(L"gap", L"2"));
    const XmlContent written = XmlContent().Text(L"slot", L"9").Text(L"gap", L"2");

    WriteEntries(Chosen(L"old"));
    ExpectUndone(L"baudrate", L"9600", Chosen(L"old", written));

    WriteEntries(Chosen(L"old"));
    ExpectUndone(L"busparam", L"1", Chosen(L"old", written));
}

TEST_F(EnumSetProfileUndo, RestoresTheOldValueThatAPairHasChangedOnceMore)
{
    WriteProfiles(XmlContent().Text(L"baudrate", L"19200").Text(L"DeviceID", L"AFK220"));
    WriteEntries(Chosen(L"old"));

    ExpectUndone(L"baudrate", L"9600", Chosen(L"old"));
}

TEST_F(EnumSetProfileUndo, RestoresAnEmptyAndALongOldValue)
{
    for (const std::size_t length : {0U, 1U, 254U, 255U})
    {
        const std::wstring old(length, L'\u00B5');
        WriteEntries(Chosen(old));

        ExpectUndone(L"baudrate", L"9600", Chosen(old));
    }
}

TEST_F(EnumSetProfileUndo, LeavesTheFileOfAValueThatIsThereAlready)
{
    WriteEntries(Chosen(L"9600"));

    ExpectChooseChangesNothing(L"baudrate", L"9600", PGSP_PROFILE_NO_VALUE);
}

TEST_F(EnumSetProfileUndo, WritesTheDefaultForAnOldValueThatTheDeviceLacked)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"default", L"187500"}}));
    WriteEntries({});

    ExpectUndone(L"baudrate", L"9600", XmlContent().Text(L"baudrate", L"187500"));
}

// A value from ahead of the catalogue's present bounds.
TEST_F(EnumSetProfileUndo, KeepsTheNewValueWhereTheOldOneIsRefused)
{
    store.WriteBoard(Catalogue().Parameter(L"busparam", {{L"type", L"int"}, {L"min", L"0"}, {L"max", L"3"}}));
    WriteEntries(XmlContent().Int(L"busparam", L"7"));

    ExpectUndone(L"busparam", L"2", XmlContent().Int(L"busparam", L"2"));
}

// The first read searches the sections, and the profile's own doesn't.
TEST_F(EnumSetProfileUndo, RestoresTheOldValueOfAParameterOutsideOfItsSection)
{
    WriteProfiles(XmlContent().Text(L"slot", L"9"));
    const XmlContent device = XmlContent()
                                  .Element(L"NetworkSettings", XmlContent().Int(L"baudrate", L"19200"))
                                  .Raw(Spare({}).utf8());
    store.WriteDevice(L"Presse", device);

    EXPECT_EQ(Choose(L"baudrate", L"9600"), PGSP_PROFILE_NO_VALUE);

    EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(device)));
}

} // namespace
} // namespace norvepa::test
