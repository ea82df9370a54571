#include "WatchScene.h"

#include <functional>
#include <thread>
#include <utility>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

// What happens while the next scan is under way, once.
std::function<void()> meanwhile;

HANDLE WINAPI ScanThatTakesItsTime(const wchar_t* pattern, FINDEX_INFO_LEVELS level, void* found,
                                   FINDEX_SEARCH_OPS search, void* filter, DWORD flags)
{
    static const auto scan = reinterpret_cast<decltype(&FindFirstFileExW)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "FindFirstFileExW")));
    const HANDLE handle = scan(pattern, level, found, search, filter, flags);
    if (const auto action = std::exchange(meanwhile, nullptr))
    {
        action();
    }
    return handle;
}

class ScanUnderWay : public WatchScene
{
protected:
    ScanUnderWay() { MakeFile(logDevices(), L"Pumpe.xml"); }

    ~ScanUnderWay() override { meanwhile = nullptr; }

    const ImportHook slowly{"FindFirstFileExW", ScanThatTakesItsTime};
};

TEST_F(ScanUnderWay, IsNotKeptWhenItsFolderWentStaleMeanwhile)
{
    meanwhile = [&] {
        MakeFile(logDevices(), L"Presse.xml");
        EXPECT_TRUE(calls.AwaitChange(0));
        EXPECT_EQ(Poll(), PGSP_OK); // as another caller's: no lock is held
    };

    EXPECT_THAT(Listing(logDevices()), testing::Contains(L"Pumpe"));

    EXPECT_THAT(Listing(logDevices()), UnorderedElementsAre(L"Pumpe", L"Presse"));
}

TEST_F(ScanUnderWay, IsNotKeptWhenEverythingWentStaleMeanwhile)
{
    MakeFile(boards(), L"Karte.xml");
    meanwhile = [&] {
        MakeFile(boards(), L"Neu.xml");
        deinitWatchDirectories();
        EXPECT_EQ(getDirectoryChange(roots.data() + L"\\gone"), NoListing);
    };

    EXPECT_THAT(Listing(boards()), testing::Contains(L"Karte"));

    EXPECT_THAT(Listing(boards()), UnorderedElementsAre(L"Karte", L"Neu"));
}

TEST_F(ScanUnderWay, ShowsAChangeThatNobodyHasPolledYetAtTheNextQuery)
{
    meanwhile = [&] {
        MakeFile(logDevices(), L"Presse.xml");
        EXPECT_TRUE(calls.AwaitChange(0));
    };

    EXPECT_THAT(Listing(logDevices()), testing::Contains(L"Pumpe"));

    EXPECT_THAT(Listing(logDevices()), UnorderedElementsAre(L"Pumpe", L"Presse"));
}

TEST_F(ScanUnderWay, HoldsNoLockOfTheCache)
{
    MakeFile(logNames(), L"Band.xml");
    meanwhile = [&] {
        std::thread([&] {
            EXPECT_THAT(Listing(logNames()), ElementsAre(L"Band"));
            deinitWatchDirectories();
        }).join(); // would wait for ever
    };

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
}

TEST_F(ScanUnderWay, MayBeOneOfTwoOfTheSameFolder)
{
    meanwhile = [&] {
        std::thread([&] { EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe")); }).join();
    };

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
}

} // namespace
} // namespace norvepa::test
