#include "SetScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/XmlMeaning.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class DelValue : public SetScene
{
protected:
    DelValue()
    {
        store.UseOurSchemas();
        WriteSpare(XmlContent().Text(L"Ort", L"Halle 2").Int(L"Stufe", L"1").Bool(L"Aktiv", L"true"));
    }

    // A device that satisfies its schema, with these entries in its spare section.
    [[nodiscard]] static XmlContent Device(const XmlContent& spare)
    {
        return XmlContent()
            .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1").Text(L"Ort", L"header"))
            .Element(L"LocalSettings", XmlContent().Text(L"Ort", L"local"))
            .Element(L"SpareSection", spare);
    }

    void WriteSpare(const XmlContent& spare) const { Write(Device(spare)); }
    void ExpectSpare(const XmlContent& spare) const { ExpectSaved(Device(spare)); }
};

TEST_F(DelValue, NeedsADeviceAndAParameter)
{
    EXPECT_EQ(library.LogDeviceDelValueBL(nullptr, L"Ort"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceDelValueBL(L"", L"Ort"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceDelValueBL(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
}

// Nothing stands for the parameter "default" here.
TEST_F(DelValue, RefusesAParameterWithoutAName)
{
    WriteSpare(XmlContent().Text(L"default", L"1"));

    ExpectDeletionChangesNothing(nullptr, PGSP_ERR_INVALID_PARAMETERS);
    ExpectDeletionChangesNothing(L"", PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Delete(L"default"), PGSP_OK);
}

TEST_F(DelValue, NeedsTheDataFolder)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(Delete(L"Ort"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Delete(L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(DelValue, RemovesFromSpareSectionWithoutAWordOfTheCatalogue)
{
    EXPECT_EQ(Delete(L"ORT"), PGSP_OK);

    ExpectSpare(XmlContent().Int(L"Stufe", L"1").Bool(L"Aktiv", L"true"));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(DelValue, RemovesEntriesOfEveryKind)
{
    EXPECT_EQ(Delete(L"Stufe"), PGSP_OK);
    EXPECT_EQ(Delete(L"Aktiv"), PGSP_OK);
    EXPECT_EQ(Delete(L"Ort"), PGSP_OK);

    ExpectSpare({});
}

TEST_F(DelValue, RemovesFromTheCataloguesSection)
{
    store.WriteBoard(Catalogue().Parameter(L"Ort", {{L"section", L"LocalSettings"}}));

    EXPECT_EQ(Delete(L"Ort"), PGSP_OK);

    ExpectSaved(
        XmlContent()
            .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1").Text(L"Ort", L"header"))
            .Element(L"LocalSettings", XmlContent())
            .Element(L"SpareSection",
                     XmlContent().Text(L"Ort", L"Halle 2").Int(L"Stufe", L"1").Bool(L"Aktiv", L"true")));
}

TEST_F(DelValue, SearchesNoSection)
{
    WriteSpare({});

    ExpectDeletionChangesNothing(L"Ort", PGSP_ERR_PARAM_NOT_FOUND);
    ExpectDeletionChangesNothing(L"Unit", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DelValue, KnowsNoMappedName)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"map", L"Stufe"}, {L"default", L"1"}}));

    ExpectDeletionChangesNothing(L"Takt", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DelValue, ProtectsNoWordAndReachesNoAttribute)
{
    ExpectDeletionChangesNothing(L"DeviceID", PGSP_ERR_PARAM_NOT_FOUND);
    WriteSpare(XmlContent().Text(L"DeviceID", L"1").Text(L"CP_TYPE", L"2"));

    EXPECT_EQ(Delete(L"DeviceID"), PGSP_OK);
    EXPECT_EQ(Delete(L"cp_type"), PGSP_OK);

    ExpectSpare({});
}

TEST_F(DelValue, FindsNoParameterWithoutTheCataloguesSection)
{
    store.WriteBoard(Catalogue().Parameter(L"Ort", {{L"section", L"Bindings"}}));

    ExpectDeletionChangesNothing(L"Ort", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DelValue, FindsNoFileForADeviceThatIsMissing)
{
    EXPECT_EQ(library.LogDeviceDelValueBL(L"gone", L"Ort"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(DelValue, KnowsNoSubdevices)
{
    EXPECT_EQ(library.LogDeviceDelValueBL(L"Presse\\subdevices\\Ventil", L"Ort"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(DelValue, RefusesTooLongAPath)
{
    EXPECT_EQ(library.LogDeviceDelValueBL(store.DeviceForPathOf(260).c_str(), L"Ort"),
              PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(DelValue, LeavesAFileThatCanNotBeLoadedAsItIs)
{
    WriteBytes(roots.logDevice(L"Presse"), "<LogDevice><SpareSection></LogDevice>");

    ExpectDeletionChangesNothing(L"Ort", PGSP_ERR_CANT_LOAD_XML_FILE);
}

// A device's header holds a number, or it isn't a device.
TEST_F(DelValue, LeavesAFileThatWouldNotSatisfyItsSchema)
{
    store.WriteBoard(Catalogue().Parameter(L"Unit", {{L"section", L"DeviceHeader"}}));

    ExpectDeletionChangesNothing(L"Unit", PGSP_ERR_INVALID_FILE);
}

TEST_F(DelValue, NeedsTheSchema)
{
    std::filesystem::remove(roots.program() + L"\\Schemes\\Corvane.Device.Driver.Logdevice.xsd");

    ExpectDeletionChangesNothing(L"Ort", PGSP_ERR_CANT_LOAD_SCHEMA);
}

TEST_F(DelValue, NeedsTheProgramFolder)
{
    store.TakeProgramFolderAway();

    ExpectDeletionChangesNothing(L"Ort", PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(DelValue, NeedsCom)
{
    OnFreshThread([&] { ExpectDeletionChangesNothing(L"Ort", PGSP_ERR_CANT_CREATE_XML_ENGINE); });
}

TEST_F(DelValue, LeavesBothFilesWhenTheOldOneIsInUse)
{
    const std::string before = store.Bytes(L"Presse");
    const OpenFile inUse(roots.logDevice(L"Presse"));

    EXPECT_EQ(Delete(L"Ort"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), ElementsAre(L"Presse(temp).xml", L"Presse.xml"));
}

TEST_F(DelValue, ReplacesATemporaryFileThatWasLeftOver)
{
    WriteBytes(roots.logDevice(L"Presse(temp)"), "left over");

    EXPECT_EQ(Delete(L"Ort"), PGSP_OK);

    ExpectSpare(XmlContent().Int(L"Stufe", L"1").Bool(L"Aktiv", L"true"));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(DelValue, RemovesFromDevicesWithCodedNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Device(XmlContent().Text(L"Takt", L"1")));

        EXPECT_EQ(library.LogDeviceDelValueBL(coded.name, L"Takt"), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_EQ(store.Saved(coded.fileName), MeaningOf(LogDeviceFile(Device({})))) << ToUtf8(coded.name);
    }
    EXPECT_EQ(Files().size(), std::size(CodedNames) + 1); // and "Presse", with nothing beside them
}

} // namespace
} // namespace norvepa::test
