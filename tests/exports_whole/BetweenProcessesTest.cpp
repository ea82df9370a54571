#include "exports_whole/WholeScene.h"
#include "support/Peer.h"

#include <deque>
#include <thread>

namespace norvepa::test
{
namespace
{

class WholeBetweenProcesses : public WholeScene
{
protected:
    // A process that writes by these steps, and two that ask by the others.
    void ExpectReadAsItWasOrIs(const std::string& writing, const std::string& asking)
    {
        Peer writer(L"store_worker.exe", roots.registry());
        std::deque<Peer> readers;
        for (int reader = 0; reader < 2; ++reader)
        {
            readers.emplace_back(L"store_worker.exe", roots.registry());
        }
        Tally written(writer.Ask("begin " + writing));
        Tally read;
        for (Peer& reader : readers)
        {
            read.Add(Tally(reader.Ask("begin " + asking)));
        }

        std::this_thread::sleep_for(Span());
        for (Peer& reader : readers)
        {
            read.Add(Tally(reader.Ask("end")));
        }
        written.Add(Tally(writer.Ask("end")));

        ExpectAllRight("written", written);
        ExpectAllRight("read", read);
    }
};

TEST_F(WholeBetweenProcesses, ALogDeviceIsReadAsItWasOrIs)
{
    ExpectReadAsItWasOrIs("set-device look-at-device", "ask-device");

    ExpectDeviceOfOneText();
}

TEST_F(WholeBetweenProcesses, ALogNameIsReadAsItWasOrIs)
{
    ExpectReadAsItWasOrIs("set-name look-at-name", "ask-name");

    ExpectNameOfOneText();
}

} // namespace
} // namespace norvepa::test
