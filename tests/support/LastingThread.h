#pragma once

// A thread that lives as long as the object and runs bodies, one after the other: how a host has the library
// called from a thread that was there before it and stays when it has gone. It has no COM at first.

#include <windows.h>

#include <functional>
#include <thread>

namespace norvepa::test
{

class LastingThread
{
public:
    LastingThread() : m_thread([this] { Work(); }) {}
    LastingThread(const LastingThread&) = delete;
    LastingThread& operator=(const LastingThread&) = delete;
    ~LastingThread()
    {
        Run(nullptr);
        m_thread.join();
        CloseHandle(m_asked);
        CloseHandle(m_done);
    }

    // Returns when the body has. An empty one ends the thread.
    void Run(const std::function<void()>& body)
    {
        m_body = &body;
        SetEvent(m_asked);
        WaitForSingleObject(m_done, INFINITE);
    }

private:
    void Work()
    {
        for (bool goesOn = true; goesOn;)
        {
            WaitForSingleObject(m_asked, INFINITE);
            goesOn = static_cast<bool>(*m_body);
            if (goesOn)
            {
                (*m_body)();
            }
            SetEvent(m_done);
        }
    }

    HANDLE m_asked = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE m_done = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const std::function<void()>* m_body = nullptr;
    std::thread m_thread; // behind all that it looks at
};

} // namespace norvepa::test
