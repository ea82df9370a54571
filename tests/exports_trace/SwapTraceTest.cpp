#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr wchar_t First[] = L"PGSP_TEMP_LOG_DEVICE____000";

// A log device that is replaced by its temporary one.
class SwapTrace : public LogNameTraceScene
{
protected:
    SwapTrace() { store.WriteDevice(L"Presse", {}); }

    const DeviceStore store{roots};
};

TEST_F(SwapTrace, SaysThatTheTemporaryDeviceIsRemovedAheadOfItsRemoval)
{
    WriteBytes(roots.logDevice(First), "");
    Load();

    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(First, L"Presse"), PGSP_OK);

    const std::string folder = ToAnsi(store.deviceFolder());
    const std::string device = folder + "\\Presse";
    const std::string temporary = folder + "\\PGSP_TEMP_LOG_DEVICE____000";
    EXPECT_THAT(
        LinesTaggedAnyOf({"LogDeviceUpdateWithTempBL: ", "NorvXMLDeleteFile: ", "NorvXMLCopyFile: "}),
        ElementsAre("entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000, LogDevice = Presse",
                    "entry: >> filePath = " + device, "entry: >> _wremove = " + device + ".xml",
                    "entry: >> destinationPath = " + device,
                    "exit:  : CopyFile >> OldFile = " + temporary + ".xml, NewFile = " + device + ".xml",
                    "exit: << LogDevice updated. TempLogDevice deleted.", "entry: >> filePath = " + temporary,
                    "entry: >> _wremove = " + temporary + ".xml"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(SwapTrace, SaysThatTheTemporaryDeviceIsRemovedEvenWhenItStays)
{
    WriteBytes(roots.logDevice(First), "");
    const OpenFile inUse(roots.logDevice(First));
    Load();

    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(First, L"Presse"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(LinesOf("LogDeviceUpdateWithTempBL"),
                ElementsAre("entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000, LogDevice = Presse",
                            "exit: << LogDevice updated. TempLogDevice deleted."));
}

TEST_F(SwapTrace, OfACopyThatFailsEndsWithTheResult)
{
    Load();

    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(First, L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(LinesOf("LogDeviceUpdateWithTempBL"),
                ElementsAre("entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000, LogDevice = Presse",
                            "exit: << return lRet = 8512"));
}

TEST_F(SwapTrace, OfADeviceThatCanNotBeRemovedEndsWithTheResultAndCopiesNothing)
{
    WriteBytes(roots.logDevice(First), "");
    const std::wstring tooLong = store.DeviceForPathOf(260);
    Load();

    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(First, L"gone"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(First, tooLong.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    const std::string entry = "entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000, LogDevice = ";
    EXPECT_THAT(LinesOf("LogDeviceUpdateWithTempBL"),
                ElementsAre(entry + "gone", "exit: << return lRet = 8503", entry + ToAnsi(tooLong),
                            "exit: << return lRet = 234"));
    EXPECT_THAT(LinesOf("NorvXMLCopyFile"), IsEmpty());
}

TEST_F(SwapTrace, NamesTheDataFolderThatIsMissing)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(L"", L""), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceUpdateWithTempBL"), ElementsAre("entry: >> TempLogDevice = , LogDevice = ",
                                                                  NoFolder, "exit: << return lRet = 8517"));
}

TEST_F(SwapTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(nullptr, L"Presse"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceUpdateWithTempBL(First, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceUpdateWithTempBL"),
                ElementsAre("entry: >> TempLogDevice = , LogDevice = Presse", Refusal,
                            "entry: >> TempLogDevice = PGSP_TEMP_LOG_DEVICE____000, LogDevice = ", Refusal));
}

} // namespace
} // namespace norvepa::test
