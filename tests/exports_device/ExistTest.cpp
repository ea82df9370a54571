#include "GetScene.h"

#include <windows.h>

#include <filesystem>

namespace norvepa::test
{
namespace
{

constexpr std::int32_t Existence = 0;
constexpr std::int32_t Writable = 2;
constexpr std::int32_t Readable = 4;
constexpr std::int32_t Both = 6;

class Exist : public GetScene
{
protected:
    Exist()
    {
        store.WriteDevice(L"Presse",
                          XmlContent().Element(
                              L"Ndi", XmlContent().Bool(L"hidden", L"true").Subdevice(L"Achse \u00C4", {})));
    }

    [[nodiscard]] std::int32_t Ask(const std::wstring& device, std::int32_t flag = Existence) const
    {
        return library.LogDeviceExistBL(device.c_str(), flag);
    }

    void SetAttributes(DWORD attributes) const
    {
        SetFileAttributesW(roots.logDevice(L"Presse").c_str(), attributes);
    }
};

TEST_F(Exist, KnowsAFileUnderEveryFlagHiddenOrNot)
{
    for (const std::int32_t flag : {Existence, Writable, Readable, Both})
    {
        EXPECT_EQ(Ask(L"Presse", flag), PGSP_OK) << flag;
        EXPECT_EQ(Ask(L"PRESSE", flag), PGSP_OK) << flag;
        EXPECT_EQ(Ask(L"Band", flag), PGSP_ERR_FILE_NOT_FOUND) << flag;
    }
}

TEST_F(Exist, RefusesEveryOtherFlag)
{
    for (const std::int32_t flag : {1, 3, 5, 7, 8, -1, -2, INT32_MAX, INT32_MIN})
    {
        EXPECT_EQ(Ask(L"Presse", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
        EXPECT_EQ(Ask(L"Band", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
        EXPECT_EQ(Ask(L"Presse\\subdevices\\achse \u00E4", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
    }
}

TEST_F(Exist, IsDeniedOnlyToWhoWantsToWriteAReadOnlyFile)
{
    SetAttributes(FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Ask(L"Presse", Existence), PGSP_OK);
    EXPECT_EQ(Ask(L"Presse", Readable), PGSP_OK);
    EXPECT_EQ(Ask(L"Presse", Writable), PGSP_ERR_ACCESS_DENIED);
    EXPECT_EQ(Ask(L"Presse", Both), PGSP_ERR_ACCESS_DENIED);
    EXPECT_EQ(Ask(L"Presse\\subdevices\\Achse \u00C4", Writable), PGSP_OK);

    SetAttributes(FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Exist, AsksNotWhatTheFileHolds)
{
    WriteBytes(roots.logDevice(L"Band"), "no XML");
    MakeFolders(roots.logDevice(L"folder"));

    EXPECT_EQ(Ask(L"Band"), PGSP_OK);
    EXPECT_EQ(Ask(L"folder"), PGSP_OK);
}

TEST_F(Exist, FindsASubdeviceInAnyCaseWhateverTheFlag)
{
    for (const std::int32_t flag : {Existence, Writable, Readable, Both})
    {
        EXPECT_EQ(Ask(L"Presse\\subdevices\\Achse \u00C4", flag), PGSP_OK) << flag;
        EXPECT_EQ(Ask(L"PRESSE\\SUBDEVICES\\ACHSE \u00E4", flag), PGSP_OK) << flag;
        EXPECT_EQ(Ask(L"Presse\\subdevices\\Band", flag), PGSP_ERR_PARAM_NOT_FOUND) << flag;
        EXPECT_EQ(Ask(L"Band\\subdevices\\Achse \u00C4", flag), PGSP_ERR_CANT_LOAD_XML_FILE) << flag;
    }
}

// The subdevice is split off the name as given: its escaped form is looked for in no file.
TEST_F(Exist, FindsASubdeviceWhoseNameNoFileCouldHave)
{
    store.WriteDevice(L"Halle#3a 2",
                      XmlContent().Element(L"Bindings", XmlContent().Subdevice(L"50 % #1", {})));

    EXPECT_EQ(Ask(L"Halle: 2\\subdevices\\50 % #1"), PGSP_OK);
    EXPECT_EQ(Ask(L"Halle: 2\\subdevices\\50 #25 (nmbr)1"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(Exist, TakesFoldersInTheNameForFolders)
{
    WriteBytes(store.deviceFolder() + L"\\Alt\\Presse.xml", "");

    EXPECT_EQ(Ask(L"Alt\\Presse"), PGSP_OK);
    EXPECT_EQ(Ask(L"Neu\\Presse"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Ask(L"Presse\\subdevices"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(Exist, GivesNoExtensionToAPathThatHoldsItAnywhere)
{
    WriteBytes(store.deviceFolder() + L"\\Band.xml.old", "");
    WriteBytes(store.deviceFolder() + L"\\Silo.XML.xml", "");

    EXPECT_EQ(Ask(L"Presse.xml"), PGSP_OK);
    EXPECT_EQ(Ask(L"Band.xml.old"), PGSP_OK);
    EXPECT_EQ(Ask(L"Silo.XML"), PGSP_OK);

    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"root.xml");
    WriteBytes(roots.folder() / L"root.xml\\data\\LogDevices\\Turm", "");
    EXPECT_EQ(Ask(L"Turm"), PGSP_OK);
}

// It is the name alone that has to fit here, escaped: the path of a name that does may be too long for any
// file.
TEST_F(Exist, TakesANameOf259CharactersAndNoMore)
{
    EXPECT_EQ(Ask(std::wstring(259, L'n')), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Ask(std::wstring(260, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(std::wstring(253, L'n') + L"#"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Ask(std::wstring(254, L'n') + L"#"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Presse\\subdevices\\" + std::wstring(242, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Presse\\subdevices\\" + std::wstring(241, L'n')), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(Exist, TestsTheFlagAheadOfTheNameAndTheNameAheadOfTheFolder)
{
    EXPECT_EQ(library.LogDeviceExistBL(nullptr, Existence), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L""), PGSP_ERR_INVALID_PARAMETERS);
    const std::wstring tooLong(260, L'n');
    EXPECT_EQ(Ask(tooLong, 1), PGSP_ERR_INVALID_PARAMETERS);

    store.TakeDataFolderAway();
    EXPECT_EQ(Ask(L"", Existence), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(tooLong), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Presse", 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Presse"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Ask(L"Presse\\subdevices\\Achse \u00C4"), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
