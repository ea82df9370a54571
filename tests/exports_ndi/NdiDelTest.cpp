#include "NdiScene.h"
#include "support/FreshThread.h"
#include "support/Peer.h"
#include "support/XmlMeaning.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class NdiDel : public NdiScene
{
protected:
    NdiDel()
    {
        store.UseOurSchemas();
        WriteSections(Ndi(XmlContent().Text(L"Ort", L"Halle").Bool(L"hidden", L"true")));
    }

    void WriteSections(const XmlContent& sections) const { Write(Valid(sections)); }
    void ExpectSections(const XmlContent& sections) const { ExpectSaved(Valid(sections)); }
};

TEST_F(NdiDel, RemovesFromTheSectionNdiWhateverTheFlag)
{
    EXPECT_EQ(DelNdi(L"ORT", In32), PGSP_OK);
    ExpectSections(Ndi(XmlContent().Bool(L"hidden", L"true")));

    EXPECT_EQ(DelNdi(L"hidden", In64), PGSP_OK);
    ExpectSections(Ndi({}));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(NdiDel, RemovesALinkToAPage)
{
    WriteSections(Identity(XmlContent().Text(L"Ort", L"Halle"),
                           XmlContent().ParameterAssemblyLink(PropSheet).ParameterAssemblyLink(
                               {.name = L"Wartung", .assembly = L"a", .path = L"b", .function = L"c"})));

    EXPECT_EQ(DelNdi(L"propsheet"), PGSP_OK);
    EXPECT_EQ(DelNdi(L"Wartung"), PGSP_OK);

    ExpectSections(Identity(XmlContent().Text(L"Ort", L"Halle"), {}));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(NdiDel, RemovesAPlainParameterOfTheSectionOfLinks)
{
    WriteSections(Links(XmlContent().Text(L"Titel", L"a").Int(L"Spalten", L"2").Resource(DescText)));

    EXPECT_EQ(DelNdi(L"TITEL"), PGSP_OK);
    EXPECT_EQ(DelNdi(L"Spalten"), PGSP_OK);

    ExpectSections(Links(XmlContent().Resource(DescText)));
}

TEST_F(NdiDel, ChoosesTheSectionOfLinksByTheFlag)
{
    const XmlContent full = XmlContent().ParameterAssemblyLink(PropSheet).Text(L"Titel", L"a");
    for (const std::int32_t flag : {0, 1, 2, -1, INT32_MIN})
    {
        WriteSections(Links(full, In32).Raw(Links(full, In64).utf8()));

        EXPECT_EQ(DelNdi(L"PropSheet", flag), PGSP_OK);
        EXPECT_EQ(DelNdi(L"Titel", flag), PGSP_OK);

        ExpectSections(flag == 0 ? Links(full, In32).Raw(Links({}, In64).utf8())
                                 : Links({}, In32).Raw(Links(full, In64).utf8()));
    }
}

TEST_F(NdiDel, TakesTheThreePlacesInTheirOrderOneAtATime)
{
    const XmlContent page = XmlContent().ParameterAssemblyLink(PropSheet);
    const XmlContent plain = XmlContent().Text(L"PropSheet", L"plain");
    WriteSections(Links(XmlContent(plain).Raw(page.utf8())).Raw(Ndi(plain).utf8()));

    EXPECT_EQ(DelNdi(L"PropSheet"), PGSP_OK);
    ExpectSections(Links(XmlContent(plain).Raw(page.utf8())).Raw(Ndi({}).utf8()));

    EXPECT_EQ(DelNdi(L"PropSheet"), PGSP_OK);
    ExpectSections(Links(plain).Raw(Ndi({}).utf8()));

    EXPECT_EQ(DelNdi(L"PropSheet"), PGSP_OK);
    ExpectSections(Links({}).Raw(Ndi({}).utf8()));

    ExpectDelNdiChangesNothing(L"PropSheet", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(NdiDel, FindsNothingWhereNoneOfTheThreePlacesHoldsIt)
{
    WriteSections(Identity({}, {}).Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle")));

    ExpectDelNdiChangesNothing(L"Ort", PGSP_ERR_PARAM_NOT_FOUND);
    ExpectDelNdiChangesNothing(L"Unit", PGSP_ERR_PARAM_NOT_FOUND);
    ExpectDelNdiChangesNothing(L"DeviceID", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(NdiDel, FindsNothingWithoutTheSections)
{
    WriteSections({});

    ExpectDelNdiChangesNothing(L"PropSheet", PGSP_ERR_PARAM_NOT_FOUND, In64);
    ExpectDelNdiChangesNothing(L"PropSheet", PGSP_ERR_PARAM_NOT_FOUND, In32);
}

TEST_F(NdiDel, RemovesNoLinkToAText)
{
    WriteSections(Links(XmlContent().Resource(DescText).Resource(
                            {.name = L"PropSheet", .assembly = L"a", .path = L"b", .function = L"c"}))
                      .Raw(Ndi(XmlContent().ParameterAssemblyLink(
                                   {.name = L"Diagnosis", .assembly = L"a", .path = L"b", .function = L"c"}))
                               .utf8()));

    ExpectDelNdiChangesNothing(L"DescText", PGSP_ERR_PARAM_NOT_FOUND);
    ExpectDelNdiChangesNothing(L"PropSheet", PGSP_ERR_PARAM_NOT_FOUND);
    ExpectDelNdiChangesNothing(L"Diagnosis", PGSP_ERR_PARAM_NOT_FOUND);
}

// A link that is offered as a value and the plain value that was set over it are two things.
TEST_F(NdiDel, UncoversTheLinkBelowAPlainValue)
{
    WriteSections(
        Identity(XmlContent().Text(L"PropSheet", L"plain"), XmlContent().ParameterAssemblyLink(PropSheet)));

    EXPECT_EQ(DelNdi(L"PropSheet"), PGSP_OK);

    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
}

TEST_F(NdiDel, LeavesAFileThatDoesNotSatisfyItsSchemaFromEachPlace)
{
    Write(Identity(XmlContent().Text(L"Ort", L"Halle"),
                   XmlContent().ParameterAssemblyLink(PropSheet).Text(L"Titel", L"a"))); // without a header

    ExpectDelNdiChangesNothing(L"Ort", PGSP_ERR_INVALID_FILE);
    ExpectDelNdiChangesNothing(L"PropSheet", PGSP_ERR_INVALID_FILE);
    ExpectDelNdiChangesNothing(L"Titel", PGSP_ERR_INVALID_FILE);
}

TEST_F(NdiDel, NeedsTheSchema)
{
    std::filesystem::remove(roots.program() + L"\\Schemes\\Corvane.Device.Driver.Logdevice.xsd");

    ExpectDelNdiChangesNothing(L"Ort", PGSP_ERR_CANT_LOAD_SCHEMA);
}

TEST_F(NdiDel, NeedsTheProgramFolder)
{
    store.TakeProgramFolderAway();

    ExpectDelNdiChangesNothing(L"Ort", PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(NdiDel, NeedsTheDataFolder)
{
    store.TakeDataFolderAway();

    ExpectDelNdiChangesNothing(L"Ort", PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(NdiDel, NeedsCom)
{
    OnFreshThread([&] {
        ExpectDelNdiChangesNothing(L"Ort", PGSP_ERR_CANT_CREATE_XML_ENGINE);
        ExpectDelNdiChangesNothing(L"unknown", PGSP_ERR_CANT_CREATE_XML_ENGINE);
    });
}

TEST_F(NdiDel, LeavesBothFormsOfAFileThatAnotherProcessHolds)
{
    WriteSections(
        Identity(XmlContent().Text(L"Ort", L"Halle"), XmlContent().ParameterAssemblyLink(PropSheet)));
    const std::string before = store.Bytes(L"Presse");
    {
        Peer holder(L"file_holder.exe", roots.registry());
        ASSERT_EQ(holder.Ask(ToUtf8(roots.logDevice(L"Presse"))), "held");

        EXPECT_EQ(DelNdi(L"PropSheet"), PGSP_ERR_CANT_DELETE_FILE);
        EXPECT_EQ(DelNdi(L"Ort"), PGSP_ERR_CANT_DELETE_FILE);

        EXPECT_EQ(store.Bytes(L"Presse"), before);
        EXPECT_EQ(
            store.Saved(L"Presse(temp)"),
            MeaningOf(LogDeviceFile(Valid(Identity({}, XmlContent().ParameterAssemblyLink(PropSheet))))));
        EXPECT_THAT(Files(), ElementsAre(L"Presse(temp).xml", L"Presse.xml"));
    }

    EXPECT_EQ(DelNdi(L"Ort"), PGSP_OK);

    ExpectSections(Identity({}, XmlContent().ParameterAssemblyLink(PropSheet)));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(NdiDel, ReplacesATemporaryFormThatWasLeftOver)
{
    WriteSections(
        Identity(XmlContent().Text(L"Ort", L"Halle"), XmlContent().ParameterAssemblyLink(PropSheet)));
    WriteBytes(roots.logDevice(L"Presse(temp)"), "left over");

    EXPECT_EQ(DelNdi(L"PropSheet"), PGSP_OK);
    WriteBytes(roots.logDevice(L"Presse(temp)"), "left over");
    EXPECT_EQ(DelNdi(L"Ort"), PGSP_OK);

    ExpectSections(Identity({}, {}));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(NdiDel, ChangesNoFileThatCanNotBeRead)
{
    WriteBytes(roots.logDevice(L"broken"), "<LogDevice><Ndi></LogDevice>");

    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(L"gone", L"Ort", In64), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(L"broken", L"Ort", In64), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(store.DeviceForPathOf(260).c_str(), L"Ort", In64),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(L"Presse\\subdevices\\Ventil", L"Ort", In64),
              PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml", L"broken.xml"));
}

TEST_F(NdiDel, RemovesFromDevicesWithCodedNames)
{
    const auto device = [](const XmlContent& ndi, const XmlContent& links) {
        return Valid(Identity(ndi, links));
    };
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, device(XmlContent().Text(L"Ort", L"Halle"),
                                                 XmlContent().ParameterAssemblyLink(PropSheet)));

        EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(coded.name, L"PropSheet", In64), PGSP_OK);
        EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(coded.name, L"Ort", In64), PGSP_OK);

        EXPECT_EQ(store.Saved(coded.fileName), MeaningOf(LogDeviceFile(device({}, {}))))
            << ToUtf8(coded.name);
    }
    EXPECT_EQ(Files().size(), std::size(CodedNames) + 1); // and "Presse", with nothing beside them
}

} // namespace
} // namespace norvepa::test
