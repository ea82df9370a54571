#include "support/AllAtOnce.h"

#include <atomic>
#include <thread>
#include <vector>

namespace norvepa::test
{

void AllAtOnce(int threads, const std::function<void(int thread)>& body)
{
    // Not std::latch: where the run-time builds it on a condition variable, a wake-up between its look at the
    // counter and its sleep is lost, and the thread sleeps for good.
    std::atomic<int> missing = threads;
    std::vector<std::jthread> running;
    for (int thread = 0; thread < threads; ++thread)
    {
        running.emplace_back([&, thread] {
            --missing;
            while (missing > 0)
            {
                std::this_thread::yield();
            }
            body(thread);
        });
    }
}

} // namespace norvepa::test
