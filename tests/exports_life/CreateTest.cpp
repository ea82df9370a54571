#include "LifeScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class Create : public LifeScene
{
protected:
    Create() { WriteTemplate(L"MPI", Rights(L"false", L"true")); }

    [[nodiscard]] std::int32_t Make(const std::wstring& name, const std::wstring& logDevice) const
    {
        return library.LogDeviceCreateFromDefBL(name.c_str(), logDevice.c_str());
    }

    void RemoveDeviceFolder() const { std::filesystem::remove(store.deviceFolder()); }
};

TEST_F(Create, MakesTheTemplateByteForByte)
{
    const std::string bytes = "<?xml version='1.0'?>\n<!-- by hand -->\r\n<LogDevice  DeviceID=\"\" />\n\n";
    WriteBytes(roots.deviceTemplate(L"MPI"), bytes);

    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Presse"), bytes);
    EXPECT_EQ(ReadBytes(roots.deviceTemplate(L"MPI")), bytes);
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Create, OpensNoXml)
{
    WriteBytes(roots.deviceTemplate(L"leer"), "");
    WriteBytes(roots.deviceTemplate(L"kein XML"), std::string("\0\xFF<", 3));

    EXPECT_EQ(Make(L"leer", L"a"), PGSP_OK);
    EXPECT_EQ(Make(L"kein XML", L"b"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"a"), "");
    EXPECT_EQ(store.Bytes(L"b"), std::string("\0\xFF<", 3));
}

TEST_F(Create, MakesDevicesThatAreHiddenAndCanNotBeRemovedWhereTheTemplateSaysSo)
{
    ASSERT_EQ(Make(L"MPI", L"Presse"), PGSP_OK);

    OutputBuffer name(260);
    EXPECT_EQ(library.LogDeviceGetEnumBL(nullptr, 0, name.data(), &name.length), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(library.LogDeviceDelBL(L"Presse", 0), PGSP_ERR_LOG_DEVICE_NOT_DELETABLE);
}

TEST_F(Create, TakesTheSameTemplateWithAndWithoutItsPrefix)
{
    EXPECT_EQ(Make(L"MPI", L"ohne"), PGSP_OK);
    EXPECT_EQ(Make(std::wstring(TemplatePrefix) + L"MPI", L"mit"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"ohne"), ReadBytes(roots.deviceTemplate(L"MPI")));
    EXPECT_EQ(store.Bytes(L"mit"), store.Bytes(L"ohne"));
}

TEST_F(Create, LooksForThePrefixAnywhereInTheName)
{
    const std::wstring name = L"alt Automation-OnlineAccess-LDT-MPI";
    WriteBytes(roots.program() + L"\\meta\\DefaultLogDevices\\" + name + L".xml", "anywhere");
    WriteBytes(roots.deviceTemplate(name), "in front");

    EXPECT_EQ(Make(name, L"Presse"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Presse"), "anywhere");
}

TEST_F(Create, PutsThePrefixInFrontOfOneInAnotherCase)
{
    EXPECT_EQ(Make(L"automation-onlineaccess-ldt-MPI", L"Presse"), PGSP_ERR_FILE_NOT_FOUND);

    WriteBytes(roots.deviceTemplate(L"automation-onlineaccess-ldt-MPI"), "twice");
    EXPECT_EQ(Make(L"automation-onlineaccess-ldt-MPI", L"Presse"), PGSP_OK);
    EXPECT_EQ(store.Bytes(L"Presse"), "twice");
}

TEST_F(Create, FindsNoTemplateThatIsMissingAndMakesTheFolderAllTheSame)
{
    RemoveDeviceFolder();

    EXPECT_EQ(Make(L"gone", L"Presse"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_TRUE(Exists(store.deviceFolder()));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Create, MakesTheFolderThatIsMissing)
{
    RemoveDeviceFolder();

    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_OK);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Create, MakesNoFolderAboveOrBelowThatOne)
{
    EXPECT_EQ(Make(L"MPI", L"Halle\\Presse"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_THAT(Files(), IsEmpty());

    std::filesystem::remove_all(roots.data() + L"\\data");
    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_FALSE(Exists(roots.data() + L"\\data"));
}

TEST_F(Create, MakesADeviceInAFolderThatIsThere)
{
    MakeFolders(store.deviceFolder() + L"\\Halle");

    EXPECT_EQ(Make(L"MPI", L"Halle\\Presse"), PGSP_OK);

    EXPECT_TRUE(IsThere(L"Halle\\Presse"));
}

TEST_F(Create, LeavesADeviceThatIsThereAsItIs)
{
    WriteBytes(roots.deviceTemplate(L"andere"), "another");
    ASSERT_EQ(Make(L"MPI", L"Presse"), PGSP_OK);
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(Make(L"andere", L"Presse"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(Make(L"andere", L"PRESSE"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Create, LooksForTheTemplateAheadOfTheDevice)
{
    store.WriteDevice(L"Presse", {});

    EXPECT_EQ(Make(L"gone", L"Presse"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(Create, NeedsTheProgramFolderAndMakesNoFolderWithoutIt)
{
    RemoveDeviceFolder();
    store.TakeProgramFolderAway();

    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_FALSE(Exists(store.deviceFolder()));
}

TEST_F(Create, WithoutTheDataFolderMakesTheDeviceBelowTheCurrentOne)
{
    const CurrentFolder current;
    MakeFolders(L"data");
    store.TakeDataFolderAway();

    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_OK);

    EXPECT_EQ(ReadBytes(current.logDevice(L"Presse")), ReadBytes(roots.deviceTemplate(L"MPI")));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Create, WithoutTheDataFolderFailsAsACopyDoes)
{
    const CurrentFolder current;
    store.TakeDataFolderAway();

    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(Make(L"gone", L"Presse"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_FALSE(Exists(L"data"));
}

TEST_F(Create, EscapesWhatAFileNameCanNotHold)
{
    for (const CodedName& coded : CodedNames)
    {
        EXPECT_EQ(Make(L"MPI", coded.name), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_TRUE(IsThere(coded.fileName)) << ToUtf8(coded.name);
    }
}

TEST_F(Create, EscapesTheTemplatesNameToo)
{
    for (const CodedName& coded : CodedNames)
    {
        const std::string bytes = ToUtf8(coded.fileName);
        WriteBytes(roots.deviceTemplate(coded.fileName), bytes);
        const std::wstring device = std::wstring(L"Von ") + coded.name;

        EXPECT_EQ(Make(coded.name, device), PGSP_OK) << bytes;

        EXPECT_EQ(store.Bytes(std::wstring(L"Von ") + coded.fileName), bytes);
    }
}

TEST_F(Create, TakesAPathOf259CharactersAndNoMore)
{
    EXPECT_EQ(Make(L"MPI", store.DeviceForPathOf(260)), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Make(L"MPI", store.DeviceForPathOf(254) + L"#"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Make(L"MPI", std::wstring(100'000, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_THAT(Files(), IsEmpty());

    EXPECT_NE(Make(L"MPI", store.DeviceForPathOf(259)), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Make(L"MPI", store.DeviceForPathOf(255)), PGSP_OK);
}

// It is looked for first, and whatever keeps it from being found is told in the same way.
TEST_F(Create, FindsNoTemplateOfTooLongAPath)
{
    EXPECT_EQ(Make(std::wstring(300, L't'), L"Presse"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Make(std::wstring(300, L't'), store.DeviceForPathOf(260)), PGSP_ERR_FILE_NOT_FOUND);
}

// A folder is there as a file is, and can't be copied as one.
TEST_F(Create, CanNotCopyATemplateThatIsAFolder)
{
    MakeFolders(roots.deviceTemplate(L"Ordner"));

    EXPECT_EQ(Make(L"Ordner", L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Create, CanNotCopyATemplateThatAnotherProcessKeepsToItself)
{
    const HeldElsewhere held(roots, roots.deviceTemplate(L"MPI"), Sharing::Nothing);

    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Create, CopiesATemplateThatAnotherProcessReads)
{
    const HeldElsewhere held(roots, roots.deviceTemplate(L"MPI"), Sharing::Reading);

    EXPECT_EQ(Make(L"MPI", L"Presse"), PGSP_OK);
}

TEST_F(Create, MakesNoSubdevice)
{
    store.WriteDevice(L"Presse", XmlContent().Subdevice(L"Ventil", {}));

    EXPECT_EQ(Make(L"MPI", L"Presse\\subdevices\\Band"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

} // namespace
} // namespace norvepa::test
