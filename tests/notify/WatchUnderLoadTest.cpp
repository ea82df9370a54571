#include "WatchScene.h"
#include "notify/DeviceIdIndex.h"
#include "support/Eventually.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <list>
#include <mutex>
#include <thread>

namespace norvepa::test
{
namespace
{

namespace fs = std::filesystem;

constexpr ULONGLONG LoadTime = 3'000; // milliseconds

// The names of the files that are there, without extension, sorted.
Names Content(const std::wstring& folder)
{
    Names names = FileNames(folder);
    for (std::wstring& name : names)
    {
        name.resize(name.size() - 4);
    }
    return names;
}

Names Sorted(Names names)
{
    std::sort(names.begin(), names.end());
    return names;
}

class WatchUnderLoad : public WatchScene
{
protected:
    // What several threads do at once, over and over, until the time is up; how often they did it.
    template <typename... Actions>
    [[nodiscard]] static std::vector<int> Repeat(const Actions&... actions)
    {
        const ULONGLONG end = GetTickCount64() + LoadTime;
        std::vector<std::atomic<int>> rounds(sizeof...(actions));
        std::list<std::thread> threads; // a vector of them, GCC 12 takes for out of bounds
        const auto start = [&](const auto& action) {
            threads.emplace_back([&, place = threads.size()] {
                while (GetTickCount64() < end)
                {
                    action();
                    ++rounds[place];
                }
            });
        };
        (start(actions), ...);
        for (std::thread& thread : threads)
        {
            thread.join();
        }
        return {rounds.begin(), rounds.end()};
    }

    // What a look-up of a log device by its identity does with the index.
    void LookUpIdentity() const
    {
        const std::lock_guard lock(deviceIdMutex);
        static_cast<void>(Poll());
        if (!deviceIdIndex.IsValid())
        {
            for (const std::wstring& name : Listing(logDevices()))
            {
                deviceIdIndex.Add(L"*A", name, L"1");
            }
        }
        const DeviceIdIndex::Entry* const entry = deviceIdIndex.Find(L"*a", 0);
        EXPECT_TRUE(entry == nullptr || !entry->logDevice.empty());
    }
};

TEST_F(WatchUnderLoad, ListsWhatIsThereOnceTwoProcessesHaveStoppedChangingIt)
{
    Peer first(L"notify_peer.exe", roots.registry());
    Peer second(L"notify_peer.exe", roots.registry());
    MakeFile(logDevices(), L"Pumpe.xml");
    std::atomic<bool> quiet = false;
    std::list<std::thread> threads; // a vector of them, GCC 12 takes for out of bounds
    for (int i = 0; i < 3; ++i)
    {
        threads.emplace_back([&] {
            while (!quiet)
            {
                const Names listed = Listing(logDevices());
                EXPECT_NE(std::find(listed.begin(), listed.end(), L"Pumpe"), listed.end());
                static_cast<void>(Listing(logNames()));
            }
        });
    }

    const std::string folder = ToUtf8(logDevices());
    first.Send("storm " + folder + "|a|300");
    second.Send("storm " + folder + "|b|300");
    EXPECT_EQ(first.Answer(), "done");
    EXPECT_EQ(second.Answer(), "done");
    quiet = true;
    for (std::thread& thread : threads)
    {
        thread.join();
    }

    const Names content = Content(logDevices());
    EXPECT_EQ(content.size(), 301U);
    EXPECT_TRUE(Eventually([&] { return Sorted(Listing(logDevices())) == content; }));
}

TEST_F(WatchUnderLoad, BlocksInNoOrderOfLocks)
{
    Peer peer(L"notify_peer.exe", roots.registry());
    const std::string folder = ToUtf8(logDevices());
    MakeFile(logDevices(), L"Pumpe.xml");
    MakeFile(logNames(), L"Presse.xml");

    const std::vector<int> rounds = Repeat([&] { LookUpIdentity(); }, [&] { LookUpIdentity(); },
                                           [&] { static_cast<void>(Listing(logDevices())); },
                                           [&] { static_cast<void>(Listing(logNames())); },
                                           [&] { EXPECT_EQ(peer.Ask("storm " + folder + "|s|4"), "done"); });

    EXPECT_THAT(rounds, testing::Each(testing::Gt(0)));
    EXPECT_TRUE(Eventually([&] { return Sorted(Listing(logDevices())) == Content(logDevices()); }));
}

TEST_F(WatchUnderLoad, MayBeEndedAndSetUpAgainMeanwhile)
{
    MakeFile(logDevices(), L"Pumpe.xml");

    const std::vector<int> rounds = Repeat(
        [&] { LookUpIdentity(); }, [&] { EXPECT_THAT(Listing(logDevices()), testing::Contains(L"Pumpe")); },
        [] { deinitWatchDirectories(); },
        [&] {
            const std::wstring file = roots.logDevice(L"Band");
            WriteBytes(file, "");
            fs::remove(file);
        });

    EXPECT_THAT(rounds, testing::Each(testing::Gt(0)));
    EXPECT_EQ(Poll(), PGSP_OK);
}

} // namespace
} // namespace norvepa::test
