#include "trace/TraceMutex.h"

#include "trace/TraceDebugger.h"
#include "win/Handle.h"
#include "win/Lasting.h"

namespace norvepa
{

namespace
{

constexpr char MutexName[] = "Global\\NorvTRACE_MUTEX";
constexpr DWORD LongestWait = 10'000; // milliseconds

constinit win::Lasting<win::Handle> mutex;

} // namespace

void MakeTraceMutex(SECURITY_ATTRIBUTES* security) noexcept
{
    if (mutex.Get() != nullptr)
    {
        return;
    }

    win::Handle made(CreateMutexExA(security, MutexName, 0, SYNCHRONIZE));
    if (!made)
    {
        TellDebuggerOfMissing("NorvTRC_MUTEX", GetLastError());
        return;
    }
    mutex.Publish(std::move(made));
}

void CloseTraceMutex() noexcept
{
    mutex.LetGo();
}

void TraceLock() noexcept
{
    MakeTraceMutex(nullptr);
    if (const win::Handle* made = mutex.Get())
    {
        // A mutex that its owner abandoned is taken as well; a timeout changes nothing for the caller.
        WaitForSingleObject(made->get(), LongestWait);
    }
}

void TraceUnlock() noexcept
{
    if (const win::Handle* made = mutex.Get())
    {
        ReleaseMutex(made->get()); // fails harmlessly when the wait had timed out
    }
}

} // namespace norvepa
