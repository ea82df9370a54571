#pragma once

// A pointer that each thread has of its own, null until it sets it. The run-time library's thread-local
// objects would leave blocks of memory and an index behind in a process that unloads the module.
//
// Callers may rely on: nothing here throws or waits. A system without a free index has no places: what is set
// is then forgotten. Callers must: set it back to null ahead of the thread's end, and let go of it once, when
// the module is unloaded.

#include <windows.h>

#include <atomic>

namespace norvepa::win
{

template <typename Thing>
class ThreadPlace
{
public:
    constexpr ThreadPlace() noexcept = default;
    ThreadPlace(const ThreadPlace&) = delete;
    ThreadPlace& operator=(const ThreadPlace&) = delete;
    ~ThreadPlace() = default;

    [[nodiscard]] Thing* Get() const noexcept
    {
        const DWORD index = m_index.load(std::memory_order_acquire);
        return index == TLS_OUT_OF_INDEXES ? nullptr : static_cast<Thing*>(TlsGetValue(index));
    }

    void Set(Thing* thing) noexcept
    {
        const DWORD index = Index();
        if (index != TLS_OUT_OF_INDEXES)
        {
            TlsSetValue(index, thing);
        }
    }

    // As before the first use.
    void LetGo() noexcept
    {
        const DWORD index = m_index.exchange(TLS_OUT_OF_INDEXES);
        if (index != TLS_OUT_OF_INDEXES)
        {
            TlsFree(index);
        }
    }

private:
    [[nodiscard]] DWORD Index() noexcept
    {
        DWORD known = m_index.load(std::memory_order_acquire);
        if (known != TLS_OUT_OF_INDEXES)
        {
            return known;
        }
        const DWORD made = TlsAlloc();
        if (made == TLS_OUT_OF_INDEXES || m_index.compare_exchange_strong(known, made))
        {
            return made;
        }
        TlsFree(made); // another thread was faster
        return known;
    }

    std::atomic<DWORD> m_index{TLS_OUT_OF_INDEXES};
};

} // namespace norvepa::win
