#include "ScarceMemory.h"
#include "Uses.h"
#include "support/LastingThread.h"
#include "support/LibraryPresence.h"
#include "support/OutputBuffer.h"
#include "support/ProcessResources.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <functional>
#include <gmock/gmock.h>
#include <thread>

namespace norvepa::test
{
namespace
{

constexpr int RoundsOfAUse = 100;
constexpr int RoundsOfAShortage = 20; // of several dozen calls each
constexpr std::int32_t OutOfMemory = 14;

class UnloadLeavesNothing : public testing::Test
{
protected:
    UnloadLeavesNothing() { roots.FillWithSampleStore(); }

    static void LoadAndUnload(const std::function<void(const Exports&)>& use)
    {
        {
            const Exports library;
            use(library);
        }
        ASSERT_TRUE(AwaitLibraryGone());
    }

    // All rounds but the first few: with those the system lays by what it needs for good.
    static void Expect(int rounds, const std::function<void(const Exports&)>& use)
    {
        constexpr int firstFew = 25;
        const std::size_t threads = CountThreads();
        const auto run = [&](int times) {
            for (int i = 0; i < times; ++i)
            {
                LoadAndUnload(use);
            }
            ASSERT_TRUE(Eventually([&] { return CountThreads() <= threads; })); // of the workers
        };

        run(firstFew);
        const ProcessResources before = CountProcessResources();
        run(rounds);

        EXPECT_EQ(CountProcessResources(), before);
    }

    // With each request for memory failing, one in each call.
    static void RunOutOfMemory(const Exports& library, Scarcity scarcity)
    {
        bool hasFailed = true;
        for (std::size_t nth = 1; hasFailed; ++nth)
        {
            OutputBuffer value(300);
            std::int32_t result = PGSP_OK;
            {
                const ScarceMemory scarce(library.module(), nth, scarcity);
                result = library.LogDeviceGetValueBL(L"Kesselhaus", L"baudrate", value.data(), &value.length);
                hasFailed = scarce.hasFailed();
            }
            EXPECT_EQ(result, hasFailed ? OutOfMemory : PGSP_OK) << "request " << nth;
        }
    }

    static void SwitchTraceOn(const wchar_t* output)
    {
        SetMachineText(TraceKey, L"Output", output);
        SetMachineText(TraceKey, L"Level", L"136"); // entries and exits: each line takes its time
    }

    StoreRoots roots;
};

TEST_F(UnloadLeavesNothing, AThousandTimes)
{
    Expect(1000, [](const Exports&) {});
}

class UnloadLeavesNothingBehind : public UnloadLeavesNothing, public testing::WithParamInterface<Use>
{
};

TEST_P(UnloadLeavesNothingBehind, Of)
{
    Expect(RoundsOfAUse, GetParam().call);
}

INSTANTIATE_TEST_SUITE_P(EachUse, UnloadLeavesNothingBehind, testing::ValuesIn(Uses()),
                         [](const auto& use) { return use.param.name; });

TEST_F(UnloadLeavesNothing, OfATraceToFiles)
{
    SetMachineText(TraceKey, L"Path", roots.folder().path());
    SetMachineText(TraceKey, L"FileName", L"trace");
    SwitchTraceOn(L"FILE");

    Expect(RoundsOfAUse, Uses().front().call);

    EXPECT_TRUE(Exists(roots.folder() / L"trace1.TRC"));
}

TEST_F(UnloadLeavesNothing, OfATraceToTheRing)
{
    const auto openRing = [] { return OpenFileMappingA(FILE_MAP_READ, FALSE, "Global\\NorvSDD_Trace"); };
    SwitchTraceOn(L"SM");
    const auto use = [&](const Exports& library) {
        Uses().front().call(library);
        const HANDLE ring = openRing();
        EXPECT_NE(ring, nullptr);
        CloseHandle(ring);
    };

    Expect(RoundsOfAUse, use);

    EXPECT_EQ(openRing(), nullptr);
}

TEST_F(UnloadLeavesNothing, OfMemoryThatRanOut)
{
    Expect(RoundsOfAShortage, [](const Exports& library) { RunOutOfMemory(library, Scarcity::Passing); });
}

TEST_F(UnloadLeavesNothing, OfMemoryThatRanOutForGood)
{
    Expect(RoundsOfAShortage, [](const Exports& library) { RunOutOfMemory(library, Scarcity::Lasting); });
}

TEST_F(UnloadLeavesNothing, OfAThreadWhoseMemoryRanOutAndThatHasEnded)
{
    Expect(RoundsOfAShortage, [](const Exports& library) {
        std::thread([&] { RunOutOfMemory(library, Scarcity::Passing); }).join();
    });
}

TEST_F(UnloadLeavesNothing, OfAThreadWhoseMemoryRanOutAndThatLivesOn)
{
    LastingThread host;
    Expect(RoundsOfAShortage,
           [&](const Exports& library) { host.Run([&] { RunOutOfMemory(library, Scarcity::Passing); }); });
}

} // namespace
} // namespace norvepa::test
