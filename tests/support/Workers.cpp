#include "support/Workers.h"

#include <mutex>
#include <stdexcept>
#include <vector>

namespace norvepa::test
{

namespace
{

constexpr DWORD Patience = 60'000; // milliseconds

std::mutex startedMutex;
std::vector<HANDLE> started;

HANDLE WINAPI Start(SECURITY_ATTRIBUTES* security, SIZE_T stack, LPTHREAD_START_ROUTINE routine,
                    void* argument, DWORD flags, DWORD* id)
{
    // Not by its name here, which leads back to this function.
    static const auto createThread = reinterpret_cast<decltype(&CreateThread)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "CreateThread")));
    const std::lock_guard lock(startedMutex);
    const HANDLE thread = createThread(security, stack, routine, argument, flags, id);
    if ((flags & CREATE_SUSPENDED) != 0)
    {
        return thread; // GoogleTest's, which watches over another thread and ends with that
    }
    HANDLE kept = nullptr;
    if (DuplicateHandle(GetCurrentProcess(), thread, GetCurrentProcess(), &kept, SYNCHRONIZE, FALSE, 0) !=
        FALSE)
    {
        started.push_back(kept);
    }
    return thread;
}

HANDLE StartedAt(std::size_t number)
{
    const std::lock_guard lock(startedMutex);
    return started.at(number);
}

} // namespace

Workers::Workers(HMODULE module) : m_hook("CreateThread", Start, module) {}

Workers::~Workers()
{
    for (std::size_t number = 0; number < count(); ++number)
    {
        WaitForSingleObject(StartedAt(number), Patience);
        CloseHandle(StartedAt(number));
    }
    started.clear();
}

std::size_t Workers::count() const
{
    const std::lock_guard lock(startedMutex);
    return started.size();
}

void Workers::Await() const
{
    for (std::size_t number = 0; number < count(); ++number)
    {
        if (WaitForSingleObject(StartedAt(number), Patience) != WAIT_OBJECT_0)
        {
            throw std::runtime_error("a worker doesn't end");
        }
    }
}

} // namespace norvepa::test
