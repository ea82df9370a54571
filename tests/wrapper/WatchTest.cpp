#include "WrapperScene.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <type_traits>

namespace norvepa::test
{
namespace
{

using namespace std::chrono_literals;

static_assert(!std::is_copy_constructible_v<Watch>);
static_assert(std::is_nothrow_move_constructible_v<Watch>);

constexpr auto LongEnough = 60s;

class WrapperWatch : public WrapperScene
{
protected:
    static void Change(const std::wstring& watchdog) { Boiler.Set(L"watchdog", watchdog).value(); }

    // Whether an event of this name is registered.
    static bool IsRegistered(const std::wstring& folder, const std::wstring& event)
    {
        return UnRegisterNotification(folder.c_str(), nullptr, event.c_str()) == PGSP_OK;
    }
};

TEST_F(WrapperWatch, HearsAChangeOfItsFile)
{
    const Watch watch = Watch::Of(Folder::LogDevices, L"Kesselhaus").value();

    Change(L"300");

    EXPECT_TRUE(watch.wait_for(LongEnough));
    EXPECT_FALSE(watch.wait_for(0s)) << "told once";
}

TEST_F(WrapperWatch, HearsAChangeOfAnyFileOfItsFolder)
{
    const Watch devices = Watch::Of(Folder::LogDevices).value();
    const Watch names = Watch::Of(Folder::LogNames).value();

    LogName::Create(L"Mischer").value();

    EXPECT_TRUE(names.wait_for(LongEnough));
    EXPECT_FALSE(devices.wait_for(0s));
}

TEST_F(WrapperWatch, HearsAChangeOfTheCatalogue)
{
    const Watch watch = Watch::Of(Folder::Catalogue).value();

    ASSERT_EQ(PGSP_TemplateSetValueBL(L"DefaultLogDevices", L"MPI-AFK110", L"baudrate", L"19200"), PGSP_OK);

    EXPECT_TRUE(watch.wait_for(LongEnough));
}

TEST_F(WrapperWatch, DoesNotHearOfOtherFiles)
{
    const Watch all = Watch::Of(Folder::LogDevices).value();
    const Watch another = Watch::Of(Folder::LogDevices, L"Labor").value();

    Change(L"300");

    EXPECT_TRUE(all.wait_for(LongEnough));
    EXPECT_FALSE(another.wait_for(0s));
}

TEST_F(WrapperWatch, HearsChangesOfAnotherThread)
{
    const Watch watch = Watch::Of(Folder::LogNames, L"Kessel#1").value();

    std::jthread writer([] { static_cast<void>(LogName(L"Kessel#1").Set(L"Ort", L"Nord")); });

    EXPECT_TRUE(watch.wait_for(LongEnough));
}

TEST_F(WrapperWatch, HearsNothingOfAnEditCopy)
{
    const Watch watch = Watch::Of(Folder::LogDevices).value();

    EditCopy copy = EditCopy::Of(Boiler).value();
    copy.Set(L"watchdog", L"300").value();
    copy.Apply().value();

    EXPECT_FALSE(watch.wait_for(100ms));
}

TEST_F(WrapperWatch, TakesItsRegistrationBack)
{
    const std::wstring own = L"norvepa.watch." + std::to_wstring(GetCurrentProcessId()) + L".";
    { // whose names have some numbers
        const Watch first = Watch::Of(Folder::LogDevices).value();
        const Watch second = Watch::Of(Folder::LogNames, L"Kessel#1").value();
    }

    for (int number = 0; number < 100; ++number)
    {
        const std::wstring name = own + std::to_wstring(number);
        EXPECT_FALSE(IsRegistered(L"LogDevices", name));
        EXPECT_FALSE(IsRegistered(L"LogNames", name));
        EXPECT_EQ(OpenEventW(SYNCHRONIZE, FALSE, name.c_str()), nullptr);
    }
}

TEST_F(WrapperWatch, StopsHearingWhenItIsAssignedTo)
{
    Watch watch = Watch::Of(Folder::LogDevices).value();

    watch = Watch::Of(Folder::LogNames).value();
    Change(L"300");
    LogName::Create(L"Mischer").value();

    EXPECT_TRUE(watch.wait_for(LongEnough));
    EXPECT_FALSE(watch.wait_for(100ms));
}

TEST_F(WrapperWatch, ThatHasBeenMovedFromHearsNothing)
{
    Watch watch = Watch::Of(Folder::LogDevices).value();

    const Watch moved = std::move(watch);
    Change(L"300");

    EXPECT_TRUE(moved.wait_for(LongEnough));
    EXPECT_FALSE(watch.wait_for(LongEnough)); // NOLINT(bugprone-use-after-move) at once
    EXPECT_EQ(watch.native_handle(), nullptr);
}

TEST_F(WrapperWatch, MayBeWaitedForBesideOthers)
{
    const Watch names = Watch::Of(Folder::LogNames).value();
    const Watch devices = Watch::Of(Folder::LogDevices).value();
    const HANDLE both[] = {names.native_handle(), devices.native_handle()};

    Change(L"300");

    EXPECT_EQ(WaitForMultipleObjects(2, both, FALSE, 60'000), WAIT_OBJECT_0 + 1);
}

TEST_F(WrapperWatch, WaitsForTimesOfEachKind)
{
    const Watch watch = Watch::Of(Folder::LogDevices).value();

    EXPECT_FALSE(watch.wait_for(-1h));
    EXPECT_FALSE(watch.wait_for(1ns));
    EXPECT_FALSE(watch.wait_for(std::chrono::duration<double>(0.001)));
    EXPECT_FALSE(watch.wait_for((std::chrono::hours::min)()));
    Change(L"300");
    EXPECT_TRUE(watch.wait_for((std::chrono::hours::max)()));
}

// A name that another module of the process, which counts by itself, has taken.
TEST_F(WrapperWatch, PassesOverNamesThatAreTaken)
{
    const std::wstring own = L"norvepa.watch." + std::to_wstring(GetCurrentProcessId()) + L".";
    std::vector<HANDLE> taken;
    for (int number = 0; number < 100; ++number)
    {
        taken.push_back(CreateEventW(nullptr, FALSE, FALSE, (own + std::to_wstring(number)).c_str()));
    }

    const Watch watch = Watch::Of(Folder::LogDevices).value();
    Change(L"300");

    EXPECT_TRUE(watch.wait_for(LongEnough));
    std::ranges::for_each(taken, [](HANDLE event) { CloseHandle(event); });
}

} // namespace
} // namespace norvepa::test
