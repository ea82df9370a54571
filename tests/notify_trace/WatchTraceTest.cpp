#include "NotifyTraceScene.h"
#include "notify/directoryCache.h"
#include "support/Eventually.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;

const std::string InitStart = TraceLine("initWatchDirectories: ", ">> start");
const std::string InitEnd = TraceLine("initWatchDirectories: ", "<< end");
const std::string DeinitStart = TraceLine("deinitWatchDirectories: ", ">> start");
const std::string DeinitEnd = TraceLine("deinitWatchDirectories: ", "<< end");

std::string ChangeLine(std::string_view message)
{
    return TraceLine("getDirectoryChange: ", message);
}

BOOL WINAPI FailsToRearm(HANDLE)
{
    return FALSE;
}

DWORD WINAPI FailsToWait(DWORD, const HANDLE*, BOOL, DWORD)
{
    return WAIT_FAILED;
}

class WatchTrace : public NotifyTraceScene
{
protected:
    // Polls until a change has been told or the watch has failed; the lines of that poll.
    [[nodiscard]] std::vector<std::string> LinesOfAChange(const std::wstring& file,
                                                          const std::wstring& level = AllTraceLevels)
    {
        EXPECT_EQ(getDirectoryChange(roots.data()), PGSP_OK);
        Trace(level);
        WriteBytes(file, "");
        EXPECT_TRUE(Eventually([&] {
            static_cast<void>(getDirectoryChange(roots.data()));
            return !Lines().empty();
        }));
        return Lines();
    }
};

TEST_F(WatchTrace, OfTheBeginningStandsOnce)
{
    Trace();

    EXPECT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
    EXPECT_EQ(initWatchDirectories(roots.data()), PGSP_OK);

    EXPECT_THAT(Lines(), ElementsAre(InitStart, InitEnd));
}

TEST_F(WatchTrace, OfAMissingLogDeviceFolderWarns)
{
    fs::remove(roots.data() + L"\\data\\LogDevices");
    Trace();

    EXPECT_EQ(initWatchDirectories(roots.data()), NoListing);

    EXPECT_THAT(Lines(),
                ElementsAre(InitStart,
                            TraceLine("initWatchDirectories: ", "Error subscribing to logDevice directory"),
                            InitEnd));
}

TEST_F(WatchTrace, OfAMissingLogNameFolderWarns)
{
    fs::remove(roots.data() + L"\\data\\LogNames");
    Trace();

    EXPECT_EQ(initWatchDirectories(roots.data()), NoListing);

    EXPECT_THAT(Lines(),
                ElementsAre(InitStart,
                            TraceLine("initWatchDirectories: ", "Error subscribing to logName directory"),
                            InitEnd));
}

TEST_F(WatchTrace, OfTheEndStandsEachTime)
{
    ASSERT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
    Trace();

    deinitWatchDirectories();
    deinitWatchDirectories();

    EXPECT_THAT(Lines(), ElementsAre(DeinitStart, DeinitEnd, DeinitStart, DeinitEnd));
}

TEST_F(WatchTrace, OfAPollThatSeesNothingIsSilent)
{
    ASSERT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
    Trace();

    EXPECT_EQ(getDirectoryChange(roots.data()), PGSP_OK);

    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(WatchTrace, NamesTheFolderThatChanged)
{
    EXPECT_THAT(LinesOfAChange(roots.logDevice(L"Pumpe")),
                ElementsAre(ChangeLine("Changes in LogDeviceDirectory")));
    EXPECT_THAT(LinesOfAChange(roots.logName(L"Pumpe"), L"0x40"),
                ElementsAre(ChangeLine("Changes in LogNameDirectory")));
}

TEST_F(WatchTrace, NamesTheFolderWhoseWatchCanNotGoOn)
{
    ASSERT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
    const ImportHook broken("FindNextChangeNotification", FailsToRearm);

    EXPECT_THAT(LinesOfAChange(roots.logDevice(L"Pumpe")),
                ElementsAre(ChangeLine("Changes in LogDeviceDirectory"),
                            ChangeLine("Error in FindNextChangeNotification for logDevice directory"),
                            DeinitStart, DeinitEnd));
    EXPECT_THAT(LinesOfAChange(roots.logName(L"Pumpe")),
                ElementsAre(ChangeLine("Changes in LogNameDirectory"),
                            ChangeLine("Error in FindNextChangeNotification for logName directory"),
                            DeinitStart, DeinitEnd));
    EXPECT_THAT(LinesOfAChange(roots.logDevice(L"Presse"), L"0x10"),
                ElementsAre(ChangeLine("Error in FindNextChangeNotification for logDevice directory")));
}

TEST_F(WatchTrace, WarnsOfAWatchThatIsBroken)
{
    ASSERT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
    Trace();
    {
        const ImportHook broken("WaitForMultipleObjects", FailsToWait);
        EXPECT_EQ(getDirectoryChange(roots.data()), NoListing);
    }

    EXPECT_THAT(Lines(), ElementsAre(ChangeLine("Error watching directories"), DeinitStart, DeinitEnd));
}

TEST_F(WatchTrace, KeepsToTheLevelsOfItsKinds)
{
    Trace(L"0x8");
    EXPECT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
    deinitWatchDirectories();
    EXPECT_THAT(Lines(), ElementsAre(InitStart, DeinitStart));

    Trace(L"0x80");
    EXPECT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
    deinitWatchDirectories();
    EXPECT_THAT(Lines(), ElementsAre(InitEnd, DeinitEnd));

    fs::remove(roots.data() + L"\\data\\LogDevices");
    Trace(L"0x10");
    EXPECT_EQ(initWatchDirectories(roots.data()), NoListing);
    EXPECT_THAT(Lines(),
                ElementsAre(TraceLine("initWatchDirectories: ", "Error subscribing to logDevice directory")));
}

} // namespace
} // namespace norvepa::test
