#include "BusyCores.h"

#include <windows.h>

#include <chrono>

namespace norvepa::bench
{

namespace
{

// The system moves a server only while it is asked.
void AskForAWhile(std::chrono::seconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end)
    {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_READ, &key) == ERROR_SUCCESS)
        {
            RegCloseKey(key);
        }
    }
}

} // namespace

BusyCores::BusyCores()
{
    for (unsigned core = 1; core < std::thread::hardware_concurrency(); ++core)
    {
        m_threads.emplace_back([this] {
            while (!m_done.load(std::memory_order_relaxed))
            {
            }
        });
    }
    AskForAWhile(std::chrono::seconds(2));
}

BusyCores::~BusyCores()
{
    m_done = true;
    for (std::thread& thread : m_threads)
    {
        thread.join();
    }
}

} // namespace norvepa::bench
