#include "EnumByDeviceIdScene.h"
#include "support/Eventually.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <initializer_list>
#include <list>
#include <thread>

namespace norvepa::test
{
namespace
{

// Devices come and go by another process while threads of this one ask; each unit tells its device.
class EnumByDeviceIdUnderLoad : public EnumByDeviceIdScene
{
protected:
    static constexpr int Rounds = 12;

    EnumByDeviceIdUnderLoad()
    {
        WriteUnit(L"steady", L"unit of steady");
        WriteUnit(L"other board", L"unit of other board", L"AFK220");
    }

    // Asks for what there is, and never gets half an answer.
    void Ask() const
    {
        for (std::uint32_t index = 0; index < 4; ++index)
        {
            OutputBuffer name(20);
            OutputBuffer unit(20);
            const std::int32_t result = Enum(L"AFK110", index, name, unit);
            if (result == PGSP_OK)
            {
                EXPECT_EQ(unit.text(), L"unit of " + name.text());
                continue;
            }
            EXPECT_EQ(result, PGSP_ERR_NO_MORE_ITEMS);
            EXPECT_TRUE(name.isUntouched());
            EXPECT_TRUE(unit.isUntouched());
        }
    }

    // Runs each work again and again on a thread of its own, for as long as `meanwhile` takes.
    void WithThreadsAt(std::initializer_list<std::function<void()>> works,
                       const std::function<void()>& meanwhile)
    {
        std::atomic<bool> quiet = false;
        std::list<std::thread> threads;
        for (const std::function<void()>& work : works)
        {
            threads.emplace_back([&quiet, work] {
                do
                {
                    work();
                } while (!quiet);
            });
        }
        meanwhile();
        quiet = true;
        for (std::thread& thread : threads)
        {
            thread.join();
        }
    }

    // A file that is being moved may be closed to its readers, and a log device that couldn't be read stays
    // out of the index until the next change: so another one is made now and then.
    [[nodiscard]] bool BecomesInTheEnd(const Entries& entries) const
    {
        int attempts = 0;
        return Eventually([&] {
            if (++attempts % 200 == 0)
            {
                store.WriteDevice(L"without unit " + std::to_wstring(attempts), XmlContent());
            }
            const Entries found = All(L"AFK110");
            return found.size() == entries.size() &&
                   std::is_permutation(found.begin(), found.end(), entries.begin());
        });
    }

    const std::wstring guest = Prepare(L"guest", L"unit of guest");
    const Entries alone{{L"steady", L"unit of steady"}};
    const Entries together{{L"steady", L"unit of steady"}, {L"guest", L"unit of guest"}};
};

TEST_F(EnumByDeviceIdUnderLoad, SeesEachDeviceComeAndGo)
{
    Peer peer(L"notify_peer.exe", roots.registry());
    const auto ask = [this] { Ask(); };

    WithThreadsAt({ask, ask, ask}, [&] {
        for (int round = 0; round < Rounds; ++round)
        {
            Move(peer, guest, roots.logDevice(L"guest"));
            EXPECT_TRUE(BecomesInTheEnd(together));
            Move(peer, roots.logDevice(L"guest"), guest);
            EXPECT_TRUE(BecomesInTheEnd(alone));
        }
    });

    EXPECT_EQ(All(L"AFK220"), (Entries{{L"other board", L"unit of other board"}}));
}

// The watch is polled under two locks that the exports take in different orders, and ended meanwhile.
TEST_F(EnumByDeviceIdUnderLoad, GoesOnThoughOthersEnumerateAndEndTheWatch)
{
    Peer peer(L"notify_peer.exe", roots.registry());
    const auto ask = [this] { Ask(); };
    const auto enumerate = [this] {
        OutputBuffer name(260);
        EXPECT_EQ(library.LogDeviceGetEnumBL(L"no such type", 0, name.data(), &name.length),
                  PGSP_ERR_NO_MORE_ITEMS);
    };
    const auto endWatch = [this] { library.NorvepaBl64x_deinit(); };

    WithThreadsAt({ask, ask, enumerate, endWatch}, [&] {
        for (int round = 0; round < Rounds; ++round)
        {
            Move(peer, guest, roots.logDevice(L"guest"));
            Move(peer, roots.logDevice(L"guest"), guest);
        }
    });

    Ask();
    Move(peer, guest, roots.logDevice(L"guest")); // what changed without a watch is seen at the next change
    EXPECT_TRUE(Becomes(together));
}

} // namespace
} // namespace norvepa::test
