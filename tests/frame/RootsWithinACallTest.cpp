#include "frame/CallScope.h"
#include "frame/Calls.h"
#include "frame/RootsScene.h"
#include "frame/StoreLocations.h"
#include "support/ShellFolders.h"
#include "support/StoreRoots.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace norvepa::test
{
namespace
{

using RootsWithinACall = RootsScene;

TEST_F(RootsWithinACall, AreFoundByAKeyThatIsOpenedOnce)
{
    const CallScope call;

    ExpectRoots(L"C:\\Before");
    ExpectRoots(L"C:\\Before");

    EXPECT_EQ(timesKeyWasOpened(), 1);
}

TEST_F(RootsWithinACall, AreFoundByAKeyThatIsOpenedEachTimeWhereThereIsNoCall)
{
    ExpectRoots(L"C:\\Before");

    EXPECT_EQ(timesKeyWasOpened(), 2);
}

TEST_F(RootsWithinACall, AreFoundByTheKeyOfTheOutermostCall)
{
    Call([](CallScope& /*outer*/) {
        ExpectRoots(L"C:\\Before");
        Call([](CallScope& /*inner*/) { ExpectRoots(L"C:\\Before"); });
        ExpectRoots(L"C:\\Before");
    });

    EXPECT_EQ(timesKeyWasOpened(), 1);
}

TEST_F(RootsWithinACall, AreFoundByAKeyOfEachCalls)
{
    for (int call = 1; call <= 3; ++call)
    {
        const CallScope scope;
        ExpectRoots(L"C:\\Before");
        EXPECT_EQ(timesKeyWasOpened(), call);
    }
}

TEST_F(RootsWithinACall, AreAskedForEachTime)
{
    const CallScope call;
    ExpectRoots(L"C:\\Before");

    SetRoots(L"C:\\After");

    ExpectRoots(L"C:\\After");
}

TEST_F(RootsWithinACall, AreThoseOfTheShellWhereThereIsNoKey)
{
    const TemporaryFolder folder;
    MakeFolders(folder / FixedFolder);
    SetCommonApplicationData(folder.path());
    SetCommonProgramFiles(folder.path());
    DeleteMachineKey(LocationsKey);
    const CallScope call;

    EXPECT_EQ(GetDataFolder(), folder / FixedFolder);
    EXPECT_EQ(GetProgramFolder(), folder / FixedFolder);

    EXPECT_EQ(timesKeyWasOpened(), 1);
}

} // namespace
} // namespace norvepa::test
