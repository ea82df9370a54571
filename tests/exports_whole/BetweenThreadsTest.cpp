#include "exports_whole/Objects.h"
#include "exports_whole/Steps.h"
#include "exports_whole/WholeScene.h"
#include "support/AllAtOnce.h"

#include <windows.h>
#include <objbase.h>

#include <array>
#include <vector>

namespace norvepa::test
{
namespace
{

using Clock = std::chrono::steady_clock;

// What a thread does in turn.
using Steps = std::vector<Step>;

class WholeBetweenThreads : public WholeScene
{
protected:
    static constexpr int Threads = 8;

    // A thread for each writer, and readers up to eight. The last round of a writer is an odd one.
    void ExpectAllReadAsItWasOrIs(const std::vector<Steps>& writers, const Steps& reader)
    {
        std::array<Tally, Threads> tallies;
        const Clock::time_point end = Clock::now() + Span();

        AllAtOnce(Threads, [&](int thread) {
            const auto place = static_cast<std::size_t>(thread);
            Work(place < writers.size() ? writers[place] : reader, end, tallies.at(place));
        });

        Tally written;
        Tally read;
        for (std::size_t place = 0; place < tallies.size(); ++place)
        {
            (place < writers.size() ? written : read).Add(tallies.at(place));
        }
        ExpectAllRight("written", written);
        ExpectAllRight("read", read);
    }

private:
    void Work(const Steps& steps, Clock::time_point end, Tally& tally) const
    {
        CoInitialize(nullptr);
        for (unsigned round = 0; Clock::now() < end || round % 2 != 0; ++round)
        {
            for (const Step step : steps)
            {
                step(library, round, tally);
            }
        }
        CoUninitialize();
    }
};

TEST_F(WholeBetweenThreads, AllIsReadAsItWasOrIs)
{
    ExpectAllReadAsItWasOrIs({{SetDevice, LookAtDevice}, {SetName, LookAtName}}, {AskDevice, AskName});

    ExpectDeviceOfOneText();
    ExpectNameOfOneText();
}

// Whichever is the last, he has set the text of an odd round.
TEST_F(WholeBetweenThreads, TwoWritersOfOneFileLeaveWhatBothHaveSetLast)
{
    ExpectAllReadAsItWasOrIs({{SetDevice}, {SetDevice}, {SetName}, {SetName}}, {AskDevice, AskName});

    Tally last;
    LookAtDevice(library, 1, last);
    LookAtName(library, 1, last);
    EXPECT_THAT(last.wrong(), testing::IsEmpty());
    ExpectDeviceOfOneText();
    ExpectNameOfOneText();
}

} // namespace
} // namespace norvepa::test
