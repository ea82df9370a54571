#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string NoProgramFolder = "information: Can not get Corvane OAM path from Program Files";
const std::string Success = "exit: << return lRet = 0";
const std::string Announcement = "entry: >> SendNotificationBL";

class DeviceLifeTrace : public LogNameTraceScene
{
protected:
    DeviceLifeTrace()
    {
        WriteBytes(roots.deviceTemplate(L"MPI"), LogDeviceFile(Rights(L"true", L"false")));
        store.WriteDevice(L"Presse", Rights(L"false", L"true"));
    }

    [[nodiscard]] static XmlContent Rights(std::wstring_view enableDelete, std::wstring_view hidden)
    {
        return XmlContent().Element(
            L"Ndi", XmlContent().Bool(L"enable_delete", enableDelete).Bool(L"hidden", hidden));
    }

    const DeviceStore store{roots};
};

TEST_F(DeviceLifeTrace, OfANewDeviceTellsBothNamesAndTheResult)
{
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"MPI", L"R\u00FChrwerk 50%d"), PGSP_OK);

    EXPECT_THAT(
        LinesOf("LogDeviceCreateFromDefBL"),
        ElementsAre("entry: >> DefLogDeviceName = MPI, LogDeviceName = " + ToAnsi(L"R\u00FChrwerk 50%d"),
                    Success));
}

TEST_F(DeviceLifeTrace, OfANewDeviceAnnouncesItBetweenTheCopyAndTheExit)
{
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"MPI", L"Neu"), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"LogDeviceCreateFromDefBL: ", "SendNotificationBL: "}),
                ElementsAre("entry: >> DefLogDeviceName = MPI, LogDeviceName = Neu", Announcement, Success));
    EXPECT_THAT(LinesOf("NorvXMLCopyFile"),
                Contains("entry: >> destinationPath = " + ToAnsi(roots.data() + L"\\data\\LogDevices\\Neu")));
}

TEST_F(DeviceLifeTrace, OfANewDeviceLooksForTheTemplateUnderItsWholeName)
{
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"MPI", L"Neu"), PGSP_OK);

    const std::string copied = " : CopyFile >> OldFile = " + ToAnsi(roots.deviceTemplate(L"MPI")) +
                               ", NewFile = " + ToAnsi(roots.logDevice(L"Neu"));
    EXPECT_THAT(LinesOf("NorvXMLCopyFile"), Contains("exit: " + copied));
}

TEST_F(DeviceLifeTrace, OfATemplateThatIsMissingIsTheResultAlone)
{
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"gone", L"Neu"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(
        LinesOf("LogDeviceCreateFromDefBL"),
        ElementsAre("entry: >> DefLogDeviceName = gone, LogDeviceName = Neu", "exit: << return lRet = 8503"));
    EXPECT_THAT(LinesOf("NorvXMLCopyFile"), IsEmpty());
}

TEST_F(DeviceLifeTrace, OfADeviceThatIsThereIsTheResultWithoutAnAnnouncement)
{
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"MPI", L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(LinesOf("LogDeviceCreateFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = MPI, LogDeviceName = Presse",
                            "exit: << return lRet = 8512"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(DeviceLifeTrace, OfACreationNamesTheProgramFolderThatIsMissing)
{
    store.TakeProgramFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"MPI", L"Neu"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceCreateFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = MPI, LogDeviceName = Neu", NoProgramFolder,
                            "exit: << return lRet = 8517"));
}

TEST_F(DeviceLifeTrace, OfACreationSaysNothingOfADataFolderThatIsMissing)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"MPI", L"Neu"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(
        LinesOf("LogDeviceCreateFromDefBL"),
        ElementsAre("entry: >> DefLogDeviceName = MPI, LogDeviceName = Neu", "exit: << return lRet = 8512"));
    EXPECT_THAT(LinesOf("NorvXMLCopyFile"), Contains("entry: >> destinationPath = data\\LogDevices\\Neu"));
}

TEST_F(DeviceLifeTrace, OfACopyTellsBothNamesAndTheResult)
{
    Load();

    EXPECT_EQ(library().LogDeviceCopyBL(L"Presse", L"K\u00FChler"), PGSP_OK);
    EXPECT_EQ(library().LogDeviceCopyBL(L"Presse", L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(
        LinesOf("LogDeviceCopyBL"),
        ElementsAre("entry: >> CopyFromLogDevice = Presse, CopyToLogDevice = " + ToAnsi(L"K\u00FChler"),
                    Success, "entry: >> CopyFromLogDevice = Presse, CopyToLogDevice = Presse",
                    "exit: << return lRet = 8512"));
}

TEST_F(DeviceLifeTrace, OfACopyAnnouncesEachValueAheadOfTheCopyItself)
{
    Load();

    EXPECT_EQ(library().LogDeviceCopyBL(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"LogDeviceCopyBL: ", "PGSP_LogDeviceSetNdiBL: ", "SendNotificationBL: "}),
                ElementsAre("entry: >> CopyFromLogDevice = Presse, CopyToLogDevice = Kopie",
                            "entry: >> LogDevice = Kopie, Parameter = enable_delete, Value = true",
                            "information: Type not found. Using Type = bool", Announcement, Success,
                            "entry: >> LogDevice = Kopie, Parameter = hidden, Value = false",
                            "information: Type not found. Using Type = bool", Announcement, Success,
                            Announcement, Success));
}

TEST_F(DeviceLifeTrace, OfACopyThatDiffersInNothingAnnouncesItAlone)
{
    store.WriteDevice(L"Presse", Rights(L"TRUE", L"false"));
    Load();

    EXPECT_EQ(library().LogDeviceCopyBL(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"PGSP_LogDeviceSetNdiBL: ", "SendNotificationBL: "}),
                ElementsAre("entry: >> LogDevice = Kopie, Parameter = enable_delete, Value = true",
                            "information: Type not found. Using Type = bool", Success,
                            "entry: >> LogDevice = Kopie, Parameter = hidden, Value = false",
                            "information: Type not found. Using Type = bool", Success, Announcement));
}

TEST_F(DeviceLifeTrace, OfACopyWhoseValuesCanNotBeSetAnnouncesItAllTheSame)
{
    store.WriteDevice(L"Presse", {});
    Load();

    EXPECT_EQ(library().LogDeviceCopyBL(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"LogDeviceCopyBL: ", "PGSP_LogDeviceSetNdiBL: ", "SendNotificationBL: "}),
                ElementsAre("entry: >> CopyFromLogDevice = Presse, CopyToLogDevice = Kopie",
                            "entry: >> LogDevice = Kopie, Parameter = enable_delete, Value = true",
                            "information: Type not found. Using Type = bool", "exit: << return lRet = 8514",
                            "entry: >> LogDevice = Kopie, Parameter = hidden, Value = false",
                            "information: Type not found. Using Type = bool", "exit: << return lRet = 8514",
                            Announcement, Success));
}

TEST_F(DeviceLifeTrace, OfACopyThatFailsSetsAndAnnouncesNothing)
{
    Load();

    EXPECT_EQ(library().LogDeviceCopyBL(L"gone", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(LinesOf("LogDeviceCopyBL"),
                ElementsAre("entry: >> CopyFromLogDevice = gone, CopyToLogDevice = Kopie",
                            "exit: << return lRet = 8512"));
    EXPECT_THAT(LinesTaggedAnyOf({"PGSP_LogDeviceSetNdiBL: ", "SendNotificationBL: "}), IsEmpty());
}

TEST_F(DeviceLifeTrace, OfACopySaysNothingOfADataFolderThatIsMissing)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceCopyBL(L"Presse", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(LinesOf("LogDeviceCopyBL"),
                ElementsAre("entry: >> CopyFromLogDevice = Presse, CopyToLogDevice = Kopie",
                            "exit: << return lRet = 8512"));
}

TEST_F(DeviceLifeTrace, OfARemovalTellsTheNameTheNumberAndTheResult)
{
    store.WriteDevice(L"K\u00FChler", Rights(L"True", L"false"));
    Load();

    EXPECT_EQ(library().LogDeviceDelBL(L"K\u00FChler", 0), PGSP_OK);
    EXPECT_EQ(library().LogDeviceDelBL(L"K\u00FChler", -7), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(LinesOf("LogDeviceDelBL"),
                ElementsAre("entry: >> LogDevice = " + ToAnsi(L"K\u00FChler") + " AllowStdDelete = 0",
                            Success,
                            "entry: >> LogDevice = " + ToAnsi(L"K\u00FChler") + " AllowStdDelete = -7",
                            "exit: << return lRet = 8511"));
}

TEST_F(DeviceLifeTrace, OfARemovalAnnouncesItAheadOfTheExit)
{
    Load();

    EXPECT_EQ(library().LogDeviceDelBL(L"Presse", 1), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"LogDeviceDelBL: ", "SendNotificationBL: "}),
                ElementsAre("entry: >> LogDevice = Presse AllowStdDelete = 1", Announcement, Success));
}

TEST_F(DeviceLifeTrace, OfARemovalThatIsRefusedNamesTheResult)
{
    Load();

    EXPECT_EQ(library().LogDeviceDelBL(L"Presse", 0), PGSP_ERR_LOG_DEVICE_NOT_DELETABLE);

    EXPECT_THAT(LinesOf("LogDeviceDelBL"), ElementsAre("entry: >> LogDevice = Presse AllowStdDelete = 0",
                                                       "exit: << return PGSP_ERR_LOG_DEVICE_NOT_DELETABLE"));
    EXPECT_THAT(LinesTaggedAnyOf({"NorvXMLDeleteFile: ", "SendNotificationBL: "}), IsEmpty());
}

// The text is misspelt, and read as it is.
TEST_F(DeviceLifeTrace, OfARemovalThatFindsNoPermissionSaysSoInItsOwnSpelling)
{
    store.WriteDevice(L"Band", {});
    Load();

    EXPECT_EQ(library().LogDeviceDelBL(L"Band", 0), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(library().LogDeviceDelBL(L"gone", 0), PGSP_ERR_CANT_LOAD_XML_FILE);

    const std::string notFound = "information: Can not find psrsmeter enable_delete";
    EXPECT_THAT(LinesOf("LogDeviceDelBL"),
                ElementsAre("entry: >> LogDevice = Band AllowStdDelete = 0", notFound,
                            "exit: << return lRet = 8513", "entry: >> LogDevice = gone AllowStdDelete = 0",
                            notFound, "exit: << return lRet = 8508"));
    EXPECT_THAT(LinesOf("NorvXMLDeleteFile"), IsEmpty());
}

TEST_F(DeviceLifeTrace, OfARemovalReadsNoPermissionThatItNeedsNot)
{
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE", {});
    Load();

    EXPECT_EQ(library().LogDeviceDelBL(L"Presse", 1), PGSP_OK);
    EXPECT_EQ(library().LogDeviceDelBL(L"PGSP_TEMP_LOG_DEVICE", 0), PGSP_OK);

    EXPECT_THAT(LinesOf("NorvXMLGetValue"), IsEmpty());
    EXPECT_THAT(LinesOf("LogDeviceDelBL"),
                ElementsAre("entry: >> LogDevice = Presse AllowStdDelete = 1", Success,
                            "entry: >> LogDevice = PGSP_TEMP_LOG_DEVICE AllowStdDelete = 0", Success));
}

TEST_F(DeviceLifeTrace, OfARemovalWithoutTheDataFolderSaysThatThereIsNoPermission)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceDelBL(L"Presse", 0), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().LogDeviceDelBL(L"Presse", 1), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(LinesOf("LogDeviceDelBL"),
                ElementsAre("entry: >> LogDevice = Presse AllowStdDelete = 0",
                            "information: Can not find psrsmeter enable_delete",
                            "exit: << return lRet = 8517", "entry: >> LogDevice = Presse AllowStdDelete = 1",
                            "exit: << return lRet = 8511"));
}

TEST_F(DeviceLifeTrace, OfATemporaryNameIsDroppedOnlyByTheWholePrefix)
{
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE____000", {});
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE___000", {});
    Load();

    EXPECT_EQ(library().LogDeviceDelBL(L"PGSP_TEMP_LOG_DEVICE____000", 0), PGSP_OK);
    EXPECT_EQ(library().LogDeviceDelBL(L"PGSP_TEMP_LOG_DEVICE___000", 0), PGSP_OK);

    EXPECT_THAT(LinesOf("SendNotificationBL"),
                ElementsAre(Announcement, "exit: << exclude TempLogDevices", Announcement));
}

TEST_F(DeviceLifeTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(library().LogDeviceCreateFromDefBL(nullptr, L"Neu"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceCreateFromDefBL(L"MPI", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceCopyBL(L"", L"Neu"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceCopyBL(L"Presse", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceDelBL(nullptr, 3), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceCreateFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = , LogDeviceName = Neu", Refusal,
                            "entry: >> DefLogDeviceName = MPI, LogDeviceName = ", Refusal));
    EXPECT_THAT(LinesOf("LogDeviceCopyBL"),
                ElementsAre("entry: >> CopyFromLogDevice = , CopyToLogDevice = Neu", Refusal,
                            "entry: >> CopyFromLogDevice = Presse, CopyToLogDevice = ", Refusal));
    EXPECT_THAT(LinesOf("LogDeviceDelBL"), ElementsAre("entry: >> LogDevice =  AllowStdDelete = 3", Refusal));
}

} // namespace
} // namespace norvepa::test
