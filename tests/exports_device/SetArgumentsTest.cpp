#include "SetScene.h"

namespace norvepa::test
{
namespace
{

class SetArguments : public SetScene
{
protected:
    SetArguments() { Write(XmlContent().Element(L"SpareSection", XmlContent().Text(L"Ort", L"Halle 2"))); }
};

TEST_F(SetArguments, NeedADeviceAndAValue)
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(library.LogDeviceSetValueBL(nullptr, L"Ort", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"", L"Ort", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"Presse", L"Ort", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceSetValueBL(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
}

TEST_F(SetArguments, WithoutAParameterMeanTheParameterDefault)
{
    EXPECT_EQ(Set(nullptr, L"1"), PGSP_OK);
    ExpectSaved(
        XmlContent().Element(L"SpareSection", XmlContent().Text(L"Ort", L"Halle 2").Text(L"default", L"1")));

    EXPECT_EQ(Set(L"", L"2"), PGSP_OK);
    ExpectSaved(
        XmlContent().Element(L"SpareSection", XmlContent().Text(L"Ort", L"Halle 2").Text(L"default", L"2")));
}

TEST_F(SetArguments, WithoutAParameterAreCheckedByWhatTheCatalogueSaysOfDefault)
{
    store.WriteBoard(Catalogue().Parameter(L"default", {{L"type", L"bool"}}));

    ExpectSetChangesNothing(nullptr, L"1", PGSP_NOT_A_BOOL);
    ExpectSetChangesNothing(L"", L"1", PGSP_NOT_A_BOOL);
}

TEST_F(SetArguments, MayHoldAnEmptyValue)
{
    EXPECT_EQ(Set(L"Ort", L""), PGSP_OK);

    ExpectSaved(XmlContent().Element(L"SpareSection", XmlContent().Text(L"Ort", L"")));
}

TEST_F(SetArguments, CanNotNameTheRootsAttributesInAnyCase)
{
    for (const wchar_t* const parameter : {L"DeviceID", L"DEVICEID", L"deviceid", L"CP_TYPE", L"cp_type"})
    {
        ExpectSetChangesNothing(parameter, L"AFK110", PGSP_ERR_CANT_SET_VALUE);
    }
}

TEST_F(SetArguments, CanNotNameTheRootsAttributesOfASubdevice)
{
    Write(XmlContent().Subdevice(L"ventil", XmlContent().Text(L"DeviceID", L"1")));
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(library.LogDeviceSetValueBL(L"Presse\\subdevices\\ventil", L"DeviceID", L"2"),
              PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(SetArguments, AreTestedForTheRootsAttributesAheadOfEveryFile)
{
    store.WriteBoard(Catalogue().Parameter(L"DeviceID", {{L"type", L"bool"}}));

    ExpectSetChangesNothing(L"DeviceID", L"1", PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"gone", L"CP_TYPE", L"1"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(library.LogDeviceSetValueBL(store.DeviceForPathOf(260).c_str(), L"CP_TYPE", L"1"),
              PGSP_ERR_CANT_SET_VALUE);
    store.TakeDataFolderAway();
    EXPECT_EQ(Set(L"CP_TYPE", L"1"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetArguments, AreTestedForAValueAheadOfTheRootsAttributes)
{
    EXPECT_EQ(Set(L"DeviceID", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"", L"DeviceID", L"1"), PGSP_ERR_INVALID_PARAMETERS);
}

// Only the caller's word is protected: what the catalogue maps to is a parameter like another.
TEST_F(SetArguments, MayBeMappedToAnAttributesNameWithoutReachingTheAttribute)
{
    store.WriteBoard(Catalogue().Parameter(L"Karte", {{L"map", L"DeviceID"}}));

    EXPECT_EQ(Set(L"Karte", L"AFK220"), PGSP_OK);

    ExpectSaved(XmlContent().Element(L"SpareSection",
                                     XmlContent().Text(L"Ort", L"Halle 2").Text(L"DeviceID", L"AFK220")));
}

TEST_F(SetArguments, MayBeOfAnyLength)
{
    const std::wstring text(100'000, L'n');

    EXPECT_EQ(library.LogDeviceSetValueBL(text.c_str(), L"Ort", L"1"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogDeviceSetValueBL((text + L"\\subdevices\\" + text).c_str(), L"Ort", L"1"),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Set(text.c_str(), L"1"), PGSP_OK);
    EXPECT_EQ(Set(L"Ort", text.c_str()), PGSP_OK);

    ExpectSaved(XmlContent().Element(L"SpareSection", XmlContent().Text(L"Ort", text).Text(text, L"1")));
}

// What a device's file says of its board is no more than a part of a path.
TEST_F(SetArguments, MayMeetADeviceWithABoardOfAnyName)
{
    const std::wstring text(100'000, L'b');
    for (const std::wstring& board :
         {text, std::wstring(L"..\\..\\x"), std::wstring(L"*"), std::wstring(L"?<>|")})
    {
        store.WriteDevice(L"Presse", XmlContent().Element(L"SpareSection", XmlContent()), board, board);

        EXPECT_EQ(Set(L"baudrate", L"any"), PGSP_OK);
    }
}

} // namespace
} // namespace norvepa::test
