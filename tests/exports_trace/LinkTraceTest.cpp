#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

#include <windows.h>

#include <string>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class LinkTrace : public LogNameTraceScene
{
protected:
    LinkTrace() { store.WriteDevice(L"Kessel", {}, OurBoard, L"L2"); }

    void WriteLock(const std::wstring& word) const
    {
        WriteBytes(roots.logName(L"Pumpe"),
                   LogNameFile(XmlContent().Text(L"LOCKED_BY_THREAD_POINTER", word)));
    }

    [[nodiscard]] std::int32_t LinkTo(const wchar_t* device) const
    {
        return library().LogNameSetLogDeviceBL(L"Pumpe", device);
    }

    const DeviceStore store{roots};
};

TEST_F(LinkTrace, TellsTheResultOfTheLinkAndEachStepUnderItsOwnTag)
{
    Load();

    EXPECT_EQ(LinkTo(L"Kessel"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogNameSetLogDeviceBL"),
                ElementsAre("entry: >> LogName = Pumpe, LogDevice = Kessel", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceLink_bIsLockedBL"),
                ElementsAre("entry: >> LogName = Pumpe", "exit: << return PGSP_NOT_LOCKED"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = Kessel, Parameter = CP_TYPE",
                            "exit: << return lRet = 0, Value = L2"));
    EXPECT_EQ(LinesOf("LogNameSetValueBL").size(), 4U);
}

TEST_F(LinkTrace, OfADeviceThatIsNotThereTellsTheCode)
{
    Load();

    EXPECT_EQ(LinkTo(L"gone"), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);

    EXPECT_THAT(LinesOf("LogNameSetLogDeviceBL"),
                ElementsAre("entry: >> LogName = Pumpe, LogDevice = gone",
                            "exit: << return PGSP_ERR_LOG_DEVICE_NOT_EXISTS"));
    EXPECT_THAT(LinesOf("LogNameSetValueBL"), IsEmpty());
}

TEST_F(LinkTrace, OfAnotherThreadsLockEndsWithTheQuerysLine)
{
    WriteLock(L"0");
    Load();

    EXPECT_EQ(LinkTo(L"Kessel"), PGSP_LOCKED_BY_OTHER_THREAD);

    EXPECT_THAT(LinesOf("LogNameSetLogDeviceBL"),
                ElementsAre("entry: >> LogName = Pumpe, LogDevice = Kessel"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceLink_bIsLockedBL"),
                ElementsAre("entry: >> LogName = Pumpe", "exit: << return lRet = 8204"));
}

TEST_F(LinkTrace, OfThisThreadsLockTellsSo)
{
    WriteLock(std::to_wstring(GetCurrentThreadId()));
    Load();

    EXPECT_EQ(LinkTo(L""), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceLink_bIsLockedBL"),
                ElementsAre("entry: >> LogName = Pumpe", "exit: << return lRet = 8202"));
}

TEST_F(LinkTrace, OfAnUnlinkTellsThatTheTypeOfNoDeviceWasAskedFor)
{
    Load();

    EXPECT_EQ(LinkTo(L""), PGSP_OK);

    EXPECT_THAT(LinesOf("LogNameSetLogDeviceBL"),
                ElementsAre("entry: >> LogName = Pumpe, LogDevice = ", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = , Parameter = CP_TYPE", Refusal));
}

TEST_F(LinkTrace, OfBadArgumentsAndWithoutTheDataFolderAsksForNoLock)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogNameSetLogDeviceBL(nullptr, L"Kessel"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LinkTo(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LinkTo(L"Kessel"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameSetLogDeviceBL"),
                ElementsAre("entry: >> LogName = , LogDevice = Kessel", Refusal,
                            "entry: >> LogName = Pumpe, LogDevice = ", Refusal,
                            "entry: >> LogName = Pumpe, LogDevice = Kessel", NoFolder,
                            "exit: << return lRet = 8517"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceLink_bIsLockedBL"), IsEmpty());
}

} // namespace
} // namespace norvepa::test
