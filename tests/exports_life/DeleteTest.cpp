#include "DeleteScene.h"
#include "support/FreshThread.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using DeleteDevice = DeleteScene;

TEST_F(DeleteDevice, FindsNoDeviceThatIsMissing)
{
    EXPECT_EQ(Remove(L"gone", Ask), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Remove(L"gone", Override), PGSP_ERR_CANT_DELETE_FILE);
}

TEST_F(DeleteDevice, FindsNoTemporaryOneThatIsMissing)
{
    EXPECT_EQ(Remove(TemporaryName(0), Ask), PGSP_ERR_CANT_DELETE_FILE);
}

TEST_F(DeleteDevice, WithoutTheDataFolderCanNotAskForThePermission)
{
    const CurrentFolder current;
    store.TakeDataFolderAway();
    WriteBytes(current.logDevice(L"Presse"), LogDeviceFile(Rights(L"true", L"false")));

    EXPECT_EQ(Remove(L"Presse", Ask), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(Exists(current.logDevice(L"Presse")));
}

TEST_F(DeleteDevice, WithoutTheDataFolderRemovesBelowTheCurrentOne)
{
    Write({});
    const CurrentFolder current;
    store.TakeDataFolderAway();
    WriteBytes(current.logDevice(L"Presse"), "");
    WriteBytes(current.logDevice(TemporaryName(0)), "");

    EXPECT_EQ(Remove(L"Presse", Override), PGSP_OK);
    EXPECT_EQ(Remove(TemporaryName(0), Ask), PGSP_OK);
    EXPECT_EQ(Remove(L"Presse", Override), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_FALSE(Exists(current.logDevice(L"Presse")));
    EXPECT_FALSE(Exists(current.logDevice(TemporaryName(0))));
    EXPECT_TRUE(IsThere(L"Presse"));
}

TEST_F(DeleteDevice, LeavesAFileThatAnotherProcessReads)
{
    WritePermission(L"true");
    const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Reading);

    ExpectKept(Ask, PGSP_ERR_CANT_DELETE_FILE);
    ExpectKept(Override, PGSP_ERR_CANT_DELETE_FILE);
}

TEST_F(DeleteDevice, LeavesAFileThatAnotherProcessKeepsToItself)
{
    WritePermission(L"true");
    {
        const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Nothing);

        EXPECT_EQ(Remove(L"Presse", Ask), PGSP_ERR_CANT_LOAD_XML_FILE);
        EXPECT_EQ(Remove(L"Presse", Override), PGSP_ERR_CANT_DELETE_FILE);

        EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
    }
    EXPECT_EQ(Remove(L"Presse", Ask), PGSP_OK);
}

TEST_F(DeleteDevice, LeavesAReadOnlyFile)
{
    WritePermission(L"true");
    SetFileAttributesW(roots.logDevice(L"Presse").c_str(), FILE_ATTRIBUTE_READONLY);

    ExpectKept(Ask, PGSP_ERR_CANT_DELETE_FILE);
    ExpectKept(Override, PGSP_ERR_CANT_DELETE_FILE);

    SetFileAttributesW(roots.logDevice(L"Presse").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DeleteDevice, RemovesNoSubdevice)
{
    Write(XmlContent().Subdevice(L"Ventil", Rights(L"true", L"false")));
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(Remove(L"Presse\\subdevices\\Ventil", Ask), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Remove(L"Presse\\subdevices\\Ventil", Override), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(DeleteDevice, EscapesTheName)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Rights(L"true", L"false"));

        EXPECT_EQ(Remove(coded.name, Ask), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_THAT(Files(), IsEmpty()) << ToUtf8(coded.name);
    }
}

TEST_F(DeleteDevice, TakesAPathOf259CharactersAndNoMore)
{
    EXPECT_EQ(Remove(store.DeviceForPathOf(260), Ask), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Remove(store.DeviceForPathOf(260), Override), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Remove(store.DeviceForPathOf(254) + L"#", Override), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Remove(store.DeviceForPathOf(259), Override), PGSP_ERR_CANT_DELETE_FILE);
}

// What reads and what removes give names the extension by different rules.
TEST_F(DeleteDevice, AsksAnotherFileThanItRemovesWhenTheNameHoldsTheExtension)
{
    const std::wstring asked = store.deviceFolder() + L"\\Presse.xml.old";
    WriteBytes(asked, LogDeviceFile(Rights(L"true", L"false")));

    EXPECT_EQ(Remove(L"Presse.xml.old", Ask), PGSP_ERR_CANT_DELETE_FILE);
    WriteBytes(asked + L".xml", "");
    EXPECT_EQ(Remove(L"Presse.xml.old", Ask), PGSP_OK);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml.old"));
}

TEST_F(DeleteDevice, NeedsNoComAndNoProgramFolder)
{
    WritePermission(L"true");
    store.TakeProgramFolderAway();

    OnFreshThread([&] { EXPECT_EQ(Remove(L"Presse", Ask), PGSP_OK); });
}

} // namespace
} // namespace norvepa::test
