#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr wchar_t FirstCopy[] = L"PGSP_TEMP_LOG_DEVICE____000";

const std::string FirstMade = "exit: << return PGSP_OK, TempLogDevice = PGSP_TEMP_LOG_DEVICE____000";
const std::string NoneMade = "exit: << return PGSP_CANT_CREATE_TEMP_LOG_DEVICE";
const std::string BufferTooShort = "exit: << return PGSP_ERR_BUFFER_TOO_SHORT";

class TemporaryTrace : public LogNameTraceScene
{
protected:
    TemporaryTrace()
    {
        WriteBytes(roots.deviceTemplate(L"MPI"), LogDeviceFile(XmlContent().Element(L"Ndi", XmlContent())));
        store.WriteDevice(L"Presse", {});
    }

    [[nodiscard]] std::int32_t Make(const wchar_t* logDevice, std::uint32_t capacity = 28) const
    {
        OutputBuffer name(capacity);
        return library().LogDeviceCreateTempBL(logDevice, name.data(), &name.length);
    }

    [[nodiscard]] std::int32_t MakeFromTemplate(const wchar_t* name, std::uint32_t capacity = 28) const
    {
        OutputBuffer made(capacity);
        return library().LogDeviceCreateTempFromDefBL(name, made.data(), &made.length);
    }

    // The tries to copy that were made.
    [[nodiscard]] std::vector<std::string> Tries() const
    {
        std::vector<std::string> tries;
        for (const std::string& line : LinesOf("NorvXMLCopyFile"))
        {
            if (line.starts_with("entry: "))
            {
                tries.push_back(line);
            }
        }
        return tries;
    }

    const DeviceStore store{roots};
};

TEST_F(TemporaryTrace, OfACopyTellsItsNameAtTheEnd)
{
    store.WriteDevice(L"K\u00FChler", {});
    Load();

    EXPECT_EQ(Make(L"K\u00FChler"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempBL"),
                ElementsAre("entry: >> LogDevice = " + ToAnsi(L"K\u00FChler"), FirstMade));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(TemporaryTrace, OfACopyTriesNumberAfterNumber)
{
    WriteBytes(roots.logDevice(FirstCopy), "");
    Load();

    EXPECT_EQ(Make(L"Presse"), PGSP_OK);

    const std::string path = ToAnsi(store.deviceFolder() + L"\\PGSP_TEMP_LOG_DEVICE____");
    EXPECT_THAT(Tries(), ElementsAre("entry: >> destinationPath = " + path + "000",
                                     "entry: >> destinationPath = " + path + "001"));
    EXPECT_THAT(LinesOf("LogDeviceCreateTempBL"),
                ElementsAre("entry: >> LogDevice = Presse",
                            "exit: << return PGSP_OK, TempLogDevice = PGSP_TEMP_LOG_DEVICE____001"));
}

TEST_F(TemporaryTrace, OfADeviceThatIsMissingTriesAllNumbersAndNamesTheResult)
{
    Load();

    EXPECT_EQ(Make(L"gone"), PGSP_CANT_CREATE_TEMP_LOG_DEVICE);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempBL"), ElementsAre("entry: >> LogDevice = gone", NoneMade));
    EXPECT_THAT(Tries(), SizeIs(255));
}

TEST_F(TemporaryTrace, OfABufferThatIsTooShortTellsNoName)
{
    Load();

    EXPECT_EQ(Make(L"Presse", 27), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(MakeFromTemplate(L"MPI", 27), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempBL"),
                ElementsAre("entry: >> LogDevice = Presse", BufferTooShort));
    EXPECT_THAT(LinesOf("LogDeviceCreateTempFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = MPI", BufferTooShort));
}

TEST_F(TemporaryTrace, OfACopySaysNothingOfADataFolderThatIsMissing)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(Make(L"Presse"), PGSP_CANT_CREATE_TEMP_LOG_DEVICE);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempBL"), ElementsAre("entry: >> LogDevice = Presse", NoneMade));
}

TEST_F(TemporaryTrace, OfATemplateTellsTheNameAsGivenAndTheNameMade)
{
    Load();

    EXPECT_EQ(MakeFromTemplate(L"mpi"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = mpi", FirstMade));
}

TEST_F(TemporaryTrace, OfATemplateSetsItsNameAheadOfTheExitAndAnnouncesNothing)
{
    Load();

    EXPECT_EQ(MakeFromTemplate(L"MPI"), PGSP_OK);

    EXPECT_THAT(
        LinesTaggedAnyOf(
            {"LogDeviceCreateTempFromDefBL: ", "PGSP_LogDeviceSetNdiBL: ", "SendNotificationBL: "}),
        ElementsAre(
            "entry: >> DefLogDeviceName = MPI",
            "entry: >> LogDevice = PGSP_TEMP_LOG_DEVICE____000, Parameter = DefLogDevice, Value = MPI",
            "information: Type not found. Using Type = string", "entry: >> SendNotificationBL",
            "exit: << exclude TempLogDevices", "exit: << return lRet = 0", FirstMade));
    EXPECT_THAT(LinesOf("NotifiyThread"), IsEmpty());
}

TEST_F(TemporaryTrace, OfATemplateThatHasNoPlaceForItsNameEndsAsWell)
{
    WriteBytes(roots.deviceTemplate(L"MPI"), LogDeviceFile({}));
    Load();

    EXPECT_EQ(MakeFromTemplate(L"MPI"), PGSP_OK);

    EXPECT_THAT(
        LinesTaggedAnyOf({"LogDeviceCreateTempFromDefBL: ", "PGSP_LogDeviceSetNdiBL: "}),
        ElementsAre(
            "entry: >> DefLogDeviceName = MPI",
            "entry: >> LogDevice = PGSP_TEMP_LOG_DEVICE____000, Parameter = DefLogDevice, Value = MPI",
            "information: Type not found. Using Type = string", "exit: << return lRet = 8514", FirstMade));
}

TEST_F(TemporaryTrace, OfATemplateThatIsMissingTriesAllNumbersAndNamesTheResult)
{
    Load();

    EXPECT_EQ(MakeFromTemplate(L"gone"), PGSP_CANT_CREATE_TEMP_LOG_DEVICE);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = gone", NoneMade));
    EXPECT_THAT(Tries(), SizeIs(255));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"), IsEmpty());
}

TEST_F(TemporaryTrace, OfATemplateNamesTheProgramFolderThatIsMissing)
{
    store.TakeProgramFolderAway();
    Load();

    EXPECT_EQ(MakeFromTemplate(L"MPI"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = MPI",
                            "information: Can not get Corvane OAM path from Program Files",
                            "exit: << return lRet = 8517"));
}

TEST_F(TemporaryTrace, OfATemplateNamesTheDataFolderAheadOfTheOther)
{
    store.TakeProgramFolderAway();
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(MakeFromTemplate(L"MPI"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = MPI", NoFolder, "exit: << return lRet = 8517"));
}

TEST_F(TemporaryTrace, OfARemovalIsTheResult)
{
    WriteBytes(roots.logDevice(FirstCopy), "");
    Load();

    EXPECT_EQ(library().LogDeviceDelTempBL(FirstCopy), PGSP_OK);
    EXPECT_EQ(library().LogDeviceDelTempBL(FirstCopy), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(
        LinesOf("LogDeviceDelTempBL"),
        ElementsAre("entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000", "exit: << return lRet = 0",
                    "entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000", "exit: << return lRet = 8511"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(TemporaryTrace, OfARemovalOfARealDeviceIsTheEntryAlone)
{
    Load();

    EXPECT_EQ(library().LogDeviceDelTempBL(L"Presse"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceDelTempBL"), ElementsAre("entry: >> TempLogDevice = Presse"));
    EXPECT_THAT(LinesOf("NorvXMLDeleteFile"), IsEmpty());
}

TEST_F(TemporaryTrace, OfARemovalNamesTheDataFolderThatIsMissing)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceDelTempBL(FirstCopy), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceDelTempBL"),
                ElementsAre("entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000", NoFolder,
                            "exit: << return lRet = 8517"));
}

TEST_F(TemporaryTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(Make(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceCreateTempBL(L"Presse", nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(MakeFromTemplate(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceDelTempBL(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceDelTempBL(L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceCreateTempBL"),
                ElementsAre("entry: >> LogDevice = ", Refusal, "entry: >> LogDevice = Presse", Refusal));
    EXPECT_THAT(LinesOf("LogDeviceCreateTempFromDefBL"),
                ElementsAre("entry: >> DefLogDeviceName = ", Refusal));
    EXPECT_THAT(LinesOf("LogDeviceDelTempBL"),
                ElementsAre("entry: >> TempLogDevice = ", Refusal, "entry: >> TempLogDevice = ", Refusal));
}

} // namespace
} // namespace norvepa::test
