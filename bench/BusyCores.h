#pragma once

// Keeps all cores but one at work for as long as the object lives.
//
// Every file and key that is opened under Wine is asked of its server, which is another process. On a machine
// with idle cores the server lies now on its client's core and now on another one that has to be woken, which
// takes fifteen times as long, and stays so for seconds: two measures would be ratios of chance. With the
// other cores at work both share the one that is left.

#include <atomic>
#include <thread>
#include <vector>

namespace norvepa::bench
{

class BusyCores
{
public:
    BusyCores(); // takes two seconds, in which the system finds its new order
    BusyCores(const BusyCores&) = delete;
    BusyCores& operator=(const BusyCores&) = delete;
    ~BusyCores();

private:
    std::atomic<bool> m_done{false};
    std::vector<std::thread> m_threads;
};

} // namespace norvepa::bench
