// A second process that reads or changes a store by a library of its own, over and over, until it is told to
// end or is killed.
//
//     begin STEP...    the steps, in turn: answered behind the first round, with its tally, and gone on with
//     end              answered with the tally of all rounds behind that

#include "exports_whole/Steps.h"
#include "support/LoadedLibrary.h"
#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <windows.h>
#include <iostream>
#include <objbase.h>

#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace
{

using namespace norvepa::test;

class Worker
{
public:
    std::string Begin(std::istream& words)
    {
        for (std::string word; words >> word;)
        {
            m_steps.push_back(StepCalled(word));
        }
        Tally first;
        DoRound(0, first);
        m_thread = std::jthread([this](const std::stop_token& stop) { GoOn(stop); });
        return first.line();
    }

    std::string End()
    {
        m_thread.request_stop();
        m_thread.join();
        return m_tally.line();
    }

private:
    void DoRound(unsigned round, Tally& tally) const
    {
        for (const Step step : m_steps)
        {
            step(m_library, round, tally);
        }
    }

    void GoOn(const std::stop_token& stop)
    {
        CoInitialize(nullptr);
        for (unsigned round = 1; !stop.stop_requested(); ++round)
        {
            DoRound(round, m_tally);
        }
        CoUninitialize();
    }

    const Exports m_library;
    std::vector<Step> m_steps;
    Tally m_tally;
    std::jthread m_thread; // behind all that it looks at
};

std::string Obey(Worker& worker, const std::string& line)
{
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "begin")
    {
        return worker.Begin(words);
    }
    return command == "end" ? worker.End() : throw std::invalid_argument("unknown");
}

} // namespace

int main()
{
    const char* const key = std::getenv("NORV_TEST_MACHINE_KEY");
    const RedirectedRegistry registry(FromUtf8(key == nullptr ? "Software\\NorvepaBl64x.Tests\\peer" : key));
    CoInitialize(nullptr);
    {
        Worker worker;
        for (std::string line; std::getline(std::cin, line);)
        {
            std::cout << Obey(worker, line) << std::endl;
        }
    }
    CoUninitialize();
}
