#pragma once

// The locks within a process. They are constants at birth and hold nothing of the heap or the system's: a
// module that is unloaded leaves nothing of them behind, which can't be said of the run-time library's.
//
// Callers may rely on: nothing here fails. Callers must: lock by std::lock_guard or std::shared_lock.

#include <windows.h>

#include <atomic>

namespace norvepa::win
{

class Mutex
{
public:
    constexpr Mutex() noexcept = default;
    Mutex(const Mutex&) = delete;
    Mutex& operator=(const Mutex&) = delete;
    ~Mutex() = default;

    void lock() noexcept { AcquireSRWLockExclusive(&m_lock); }
    void unlock() noexcept { ReleaseSRWLockExclusive(&m_lock); }

private:
    SRWLOCK m_lock = SRWLOCK_INIT;
};

// By many at once, or by one alone, who is let ahead of those that come later.
class SharedMutex
{
public:
    constexpr SharedMutex() noexcept = default;
    SharedMutex(const SharedMutex&) = delete;
    SharedMutex& operator=(const SharedMutex&) = delete;
    ~SharedMutex() = default;

    void lock() noexcept { AcquireSRWLockExclusive(&m_lock); }
    void unlock() noexcept { ReleaseSRWLockExclusive(&m_lock); }
    void lock_shared() noexcept { AcquireSRWLockShared(&m_lock); }
    void unlock_shared() noexcept { ReleaseSRWLockShared(&m_lock); }

private:
    SRWLOCK m_lock = SRWLOCK_INIT;
};

// May be locked by the thread that holds it, and is free when it has been unlocked as often.
class RecursiveMutex
{
public:
    constexpr RecursiveMutex() noexcept = default;
    RecursiveMutex(const RecursiveMutex&) = delete;
    RecursiveMutex& operator=(const RecursiveMutex&) = delete;
    ~RecursiveMutex() = default;

    void lock() noexcept
    {
        // Only a thread itself writes its id: whatever else is read is another's, or nobody's.
        const DWORD self = GetCurrentThreadId();
        if (m_owner.load(std::memory_order_relaxed) != self)
        {
            m_mutex.lock();
            m_owner.store(self, std::memory_order_relaxed);
        }
        ++m_depth;
    }

    void unlock() noexcept
    {
        if (--m_depth == 0)
        {
            m_owner.store(0, std::memory_order_relaxed);
            m_mutex.unlock();
        }
    }

private:
    Mutex m_mutex;
    std::atomic<DWORD> m_owner{0}; // no thread has this id
    unsigned m_depth = 0;          // the owner's alone
};

} // namespace norvepa::win
