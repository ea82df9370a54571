#include "exports_whole/Aftermath.h"
#include "exports_whole/WholeScene.h"
#include "support/DeviceStore.h"
#include "support/Environment.h"
#include "support/Peer.h"

#include <cstdio>
#include <random>
#include <thread>

namespace norvepa::test
{
namespace
{

using Microseconds = std::chrono::microseconds;

// As long as some rounds of each step take.
constexpr Microseconds LatestMoment{20'000};

class KilledWriter : public WholeScene
{
protected:
    KilledWriter() { DeviceStore(roots).UseOurSchemas(); }

    // Each writer goes on with what the one ahead of it has left.
    void ExpectWholeBehindKillsOf(const std::string& step)
    {
        const auto seed = FromEnvironment("NORV_WHOLE_SEED", 1);
        const auto kills = FromEnvironment("NORV_WHOLE_KILLS", 5);
        std::mt19937_64 random(seed);
        std::uniform_int_distribution<Microseconds::rep> anyMoment(0, LatestMoment.count());

        for (unsigned long long kill = 1; kill <= kills; ++kill)
        {
            const Microseconds moment(anyMoment(random));
            KillOne(step, moment,
                    "kill " + std::to_string(kill) + " after " + std::to_string(moment.count()) + " us");
        }

        std::printf("seed %llu, %llu kills, beside the files: %s\n", seed, kills, m_aftermath.met().c_str());
        EXPECT_THAT(m_aftermath.faults(), testing::IsEmpty()) << "seed " << seed;
    }

private:
    void KillOne(const std::string& step, Microseconds moment, const std::string& occasion)
    {
        Peer writer(L"store_worker.exe", roots.registry());
        m_aftermath.AddFaults(occasion + ", ahead of it", Tally(writer.Ask("begin " + step)).wrong());
        Pass(moment);
        writer.Kill();
        m_aftermath.LookAround(occasion);
    }

    // Without a sleep, which knows nothing shorter than a millisecond.
    static void Pass(Microseconds time)
    {
        const auto end = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < end)
        {
            std::this_thread::yield();
        }
    }

    Aftermath m_aftermath{roots, library};
};

TEST_F(KilledWriter, LeavesALogDeviceWhole)
{
    ExpectWholeBehindKillsOf("set-device");
}

TEST_F(KilledWriter, LeavesALogNameWhole)
{
    ExpectWholeBehindKillsOf("set-name");
}

TEST_F(KilledWriter, LeavesALogDeviceWholeAmidADeletion)
{
    ExpectWholeBehindKillsOf("delete-note");
}

TEST_F(KilledWriter, LeavesALogDeviceOrItsTemporaryOneAmidASwap)
{
    ExpectWholeBehindKillsOf("swap-device");
}

} // namespace
} // namespace norvepa::test
