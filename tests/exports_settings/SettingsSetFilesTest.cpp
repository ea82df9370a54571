#include "SettingsScene.h"
#include "support/Answers.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

// What becomes of the file, whatever it was.
using SettingsSetFiles = SettingsScene;

TEST_F(SettingsSetFiles, HasMadeTheFileBeforeItRefusesAValue)
{
    EXPECT_EQ(SetSetting(L"Language", L"<"), PGSP_ERR_INVALID_PARAMETERS);

    ExpectNewFile({});
}

TEST_F(SettingsSetFiles, NeedsTheSectionInItsExactCase)
{
    WriteSettingsBytes("<PGSP><pgsp_section/><Updates/><datetimesection/><SpareSection/></PGSP>");

    ExpectSettingsKept(L"Language", L"Deutsch", PGSP_ERR_CANT_SET_VALUE);
    ExpectSettingsKept(L"LastChangeDate", L"1", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SettingsSetFiles, LeavesADamagedFileAsItIs)
{
    for (const std::string_view bytes : {"", "not even a document", "<PGSP><PGSP_Section></PGSP>"})
    {
        WriteSettingsBytes(bytes);

        ExpectSettingsKept(L"Language", L"Deutsch", PGSP_ERR_CANT_LOAD_XML_FILE);
    }
}

TEST_F(SettingsSetFiles, LeavesAFileThatIsTooLargeAsItIs)
{
    WriteSettings(
        {.common = XmlContent().Text(L"Language", L"Deutsch").Comment(std::wstring(10'000'000, L'c'))});

    ExpectSettingsKept(L"Language", L"English", PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
}

// A change that can't be saved is no failure.
TEST_F(SettingsSetFiles, SucceedsOnAFileThatCanNotBeWritten)
{
    WriteSettings({.common = XmlContent().Text(L"Language", L"Deutsch")});
    const OpenFile inUse(settingsFile());

    ExpectSettingsKept(L"Language", L"English", PGSP_OK);
}

TEST_F(SettingsSetFiles, CanNotLoadAFileThatSomebodyKeepsToHimself)
{
    WriteSettings({.common = XmlContent().Text(L"Language", L"Deutsch")});
    {
        const OpenFile held(settingsFile(), 0);

        EXPECT_EQ(SetSetting(L"Language", L"English"), PGSP_ERR_CANT_LOAD_XML_FILE);
    }
    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
}

TEST_F(SettingsSetFiles, MakesNoFolder)
{
    std::filesystem::remove_all(roots.data() + L"\\data");
    EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_ERR_CANT_CREATE_FILE);

    std::filesystem::remove_all(roots.data());
    EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_FALSE(Exists(roots.data()));
}

// Below such a root the file has no extension of its own; but only one with it would be known to be there
// already.
TEST_F(SettingsSetFiles, MakesTheFileAnewForEachValueBelowARootThatHoldsTheExtension)
{
    const std::wstring folder = roots.folder() / L"old.xml\\data";
    MakeFolders(folder);
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"old.xml");

    EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_OK);
    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
    EXPECT_EQ(SetSetting(L"Plant", L"Auental"), PGSP_OK);
    EXPECT_EQ(Setting(L"Plant"), L"Auental");

    EXPECT_EQ(Setting(L"Language"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_THAT(FileNames(folder), testing::ElementsAre(L"PGSP"));
}

TEST_F(SettingsSetFiles, KeepsTheFileBelowARootThatHoldsTheExtensionWhereOneWithItIsThereToo)
{
    const std::wstring folder = roots.folder() / L"old.xml\\data";
    WriteBytes(folder + L"\\PGSP.xml", "whatever it is");
    WriteBytes(folder + L"\\PGSP", SettingsFile(XmlContent().Text(L"Language", L"Deutsch")));
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"old.xml");

    EXPECT_EQ(SetSetting(L"Plant", L"Auental"), PGSP_OK);

    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
    EXPECT_EQ(Setting(L"Plant"), L"Auental");
    EXPECT_EQ(ReadBytes(folder + L"\\PGSP.xml"), "whatever it is");
}

TEST_F(SettingsSetFiles, NeedsTheDataFolder)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_FALSE(Exists(settingsFile()));
}

TEST_F(SettingsSetFiles, WorksOnAThreadWithoutComAndLeavesItSo)
{
    WriteSettings({});
    store.TakeProgramFolderAway();

    OnFreshThread([&] {
        EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_OK);
        EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_OK);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectSettings({.common = XmlContent().Text(L"Language", L"Deutsch")});
}

// Other than a value, the file can't be made there; what stays behind is no document.
TEST_F(SettingsSetFiles, MakesNoWholeFileOnAThreadWithoutCom)
{
    OnFreshThread([&] {
        EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    EXPECT_EQ(SettingsBytes(), "");
    ExpectSettingsKept(L"Language", L"Deutsch", PGSP_ERR_CANT_LOAD_XML_FILE);
}

} // namespace
} // namespace norvepa::test
