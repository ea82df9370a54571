#include "NotifyTraceScene.h"
#include "notify/NotifyRegistration.h"
#include "notify/SendNotification.h"
#include "robustness/FailingNew.h"
#include "win/Handle.h"

namespace norvepa::test
{
namespace
{

// Whether this thread gets the mutex of all processes as somebody else has given it back. A thread that ended
// without that leaves it abandoned.
bool IsTraceMutexFree()
{
    const win::Handle mutex(OpenMutexA(SYNCHRONIZE, FALSE, "Global\\NorvTRACE_MUTEX"));
    const DWORD result = WaitForSingleObject(mutex.get(), 0);
    ReleaseMutex(mutex.get());
    return result == WAIT_OBJECT_0;
}

class WorkerOutOfMemory : public NotifyTraceScene, public testing::WithParamInterface<Shortage>
{
protected:
    // True when the worker's nth allocation has failed.
    [[nodiscard]] bool Notify(std::size_t nth) const
    {
        std::unique_lock busy(notifyRegisterMutex);
        SendNotificationBL(L"LogNames", L"Pumpe", L"5");
        const FailingNew memory(nth, GetParam());
        busy.unlock();
        workers.Await();
        return memory.hasFailed();
    }
};

TEST_P(WorkerOutOfMemory, GivesTheTraceMutexBack)
{
    const NamedEvent event;
    Trace();

    for (std::size_t nth = 1, failed = true; failed; ++nth)
    {
        static_cast<void>(RegisterNotification(L"LogNames", L"Pumpe", event.c_str()));
        static_cast<void>(RegisterNotification(L"LogNames", L"Pumpe", L"an event that nobody has made"));

        failed = Notify(nth);

        EXPECT_TRUE(IsTraceMutexFree()) << nth;
    }

    EXPECT_THAT(Lines(), testing::Contains(testing::HasSubstr("notification failed")));
}

INSTANTIATE_TEST_SUITE_P(EachShortage, WorkerOutOfMemory,
                         testing::Values(Shortage::Passing, Shortage::Lasting));

} // namespace
} // namespace norvepa::test
