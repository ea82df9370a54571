#include "frame/CallScope.h"
#include "frame/Calls.h"
#include "frame/RootsScene.h"
#include "frame/StoreLocations.h"
#include "support/FreshThread.h"
#include "support/StoreRoots.h"

#include <gtest/gtest.h>

namespace norvepa::test
{
namespace
{

using RootsThatStand = RootsScene;

TEST_F(RootsThatStand, AreAskedForOnceEach)
{
    const CallScope call;
    const StandingRoots standing;

    for (int time = 0; time < 3; ++time)
    {
        ExpectRoots(L"C:\\Before");
    }

    EXPECT_EQ(timesDataWasAskedFor(), 1);
    EXPECT_EQ(timesProgramWasAskedFor(), 1);
}

TEST_F(RootsThatStand, StayWhatTheyWereWhenTheyWereFirstWanted)
{
    const CallScope call;
    const StandingRoots standing;
    SetRoots(L"C:\\First wanted");
    ExpectRoots(L"C:\\First wanted");

    SetRoots(L"C:\\After");

    ExpectRoots(L"C:\\First wanted");
}

TEST_F(RootsThatStand, AreNotAskedForWhenNobodyWantsThem)
{
    const CallScope call;
    {
        const StandingRoots standing;
    }

    EXPECT_EQ(timesDataWasAskedFor() + timesProgramWasAskedFor(), 0);
}

TEST_F(RootsThatStand, AreAskedForAnewAfterwards)
{
    const CallScope call;
    {
        const StandingRoots standing;
        ExpectRoots(L"C:\\Before");
    }

    SetRoots(L"C:\\After");

    ExpectRoots(L"C:\\After");
    SetRoots(L"C:\\Later");
    ExpectRoots(L"C:\\Later");
}

TEST_F(RootsThatStand, AreAskedForAnewByTheNextWalk)
{
    const CallScope call;
    {
        const StandingRoots first;
        ExpectRoots(L"C:\\Before");
    }
    SetRoots(L"C:\\After");

    const StandingRoots second;

    ExpectRoots(L"C:\\After");
}

TEST_F(RootsThatStand, StandForAsLongAsTheOutermostWalk)
{
    const CallScope call;
    const StandingRoots outer;
    ExpectRoots(L"C:\\Before");
    {
        const StandingRoots inner;
    }

    SetRoots(L"C:\\After");

    ExpectRoots(L"C:\\Before");
}

// An export that is called by another one walks in the other's call.
TEST_F(RootsThatStand, StandForTheCallsWithin)
{
    Call([](CallScope& /*outer*/) {
        const StandingRoots standing;
        ExpectRoots(L"C:\\Before");

        SetRoots(L"C:\\After");

        Call([](CallScope& /*inner*/) { ExpectRoots(L"C:\\Before"); });
        ExpectRoots(L"C:\\Before");
    });
}

TEST_F(RootsThatStand, StandAlsoWhenThereAreNone)
{
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", L"");
    const CallScope call;
    const StandingRoots standing;
    EXPECT_EQ(GetDataFolder(), L"");

    SetRoots(L"C:\\After");

    EXPECT_EQ(GetDataFolder(), L"");
    EXPECT_EQ(timesDataWasAskedFor(), 1);
}

TEST_F(RootsThatStand, ChangeNothingWhereThereIsNoCall)
{
    const StandingRoots standing;
    ExpectRoots(L"C:\\Before");

    SetRoots(L"C:\\After");

    ExpectRoots(L"C:\\After");
}

TEST_F(RootsThatStand, StandForTheirThreadAlone)
{
    const CallScope call;
    const StandingRoots standing;
    ExpectRoots(L"C:\\Before");
    SetRoots(L"C:\\After");

    OnFreshThread([] {
        const CallScope other;
        ExpectRoots(L"C:\\After");
    });
}

} // namespace
} // namespace norvepa::test
