#include "NotifyScene.h"
#include "notify/NotifyRegistration.h"
#include "notify/SendNotification.h"

#include <memory>
#include <mutex>
#include <thread>

namespace norvepa::test
{
namespace
{

HANDLE WINAPI NoThread(SECURITY_ATTRIBUTES*, SIZE_T, LPTHREAD_START_ROUTINE, void*, DWORD, DWORD*)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

class Worker : public NotifyScene
{
};

TEST_F(Worker, IsNotWaitedFor)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);

    std::unique_lock busy(notifyRegisterMutex);
    SendNotificationBL(L"LogNames", L"Pumpe", L"5");
    EXPECT_FALSE(event.IsSet());

    busy.unlock();
    EXPECT_TRUE(event.Await());
}

TEST_F(Worker, HasItsOwnCopiesOfTheNames)
{
    const NamedEvent event;
    Register(L"LogNames", L"Pumpe", event);
    auto folder = std::make_unique<std::wstring>(L"LogNames");
    auto file = std::make_unique<std::wstring>(L"Pumpe");

    std::unique_lock busy(notifyRegisterMutex);
    SendNotificationBL(folder->c_str(), file->c_str(), L"5");
    folder->assign(folder->size(), L'?');
    file->assign(file->size(), L'?');
    folder.reset();
    file.reset();

    busy.unlock();
    EXPECT_TRUE(event.Await());
}

TEST_F(Worker, IsStartedForEachChange)
{
    for (int i = 0; i < 3; ++i)
    {
        SendNotificationBL(L"LogNames", L"Pumpe", L"5");
    }

    EXPECT_EQ(workers.count(), 3U);
}

TEST_F(Worker, ThatCanNotBeStartedLosesTheNotificationAndNothingElse)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);

    {
        const ImportHook noThread("CreateThread", NoThread);
        SendNotificationBL(L"LogNames", L"Pumpe", L"5");
    }
    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(event.IsSet());

    Announce(L"LogNames", L"Pumpe");
    EXPECT_TRUE(event.IsSet());
}

TEST_F(Worker, IsOneOfManyWhenMuchChangesAtOnce)
{
    constexpr int threadCount = 4;
    constexpr int changesEach = 50;
    const NamedEvent pump;
    const NamedEvent press;
    const NamedEvent other;
    Register(L"LogNames", L"Pumpe", pump);
    Register(L"LogNames", L"Presse", press);
    Register(L"LogDevices", nullptr, other);

    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
    {
        threads.emplace_back([=] {
            for (int change = 0; change < changesEach; ++change)
            {
                SendNotificationBL(L"LogNames", i % 2 == 0 ? L"Pumpe" : L"Presse", L"5");
            }
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    workers.Await();

    EXPECT_EQ(workers.count(), threadCount * changesEach);
    EXPECT_TRUE(pump.IsSet());
    EXPECT_TRUE(press.IsSet());
    EXPECT_FALSE(other.IsSet());
    EXPECT_EQ(RegisteredEvents().size(), 3U);
}

TEST_F(Worker, MeetsRegistrationsThatComeAndGo)
{
    constexpr int threadCount = 3;
    constexpr int roundsEach = 50;
    const NamedEvent steady;
    Register(L"LogNames", nullptr, steady);

    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
    {
        threads.emplace_back([] {
            for (int round = 0; round < roundsEach; ++round)
            {
                const NamedEvent mine;
                EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, mine.c_str()), PGSP_OK);
                SendNotificationBL(L"LogNames", L"Pumpe", L"5");
                EXPECT_TRUE(mine.Await());
                EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, mine.c_str()), PGSP_OK);
            }
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    workers.Await();

    EXPECT_TRUE(steady.IsSet());
    EXPECT_THAT(RegisteredEvents(), testing::ElementsAre(steady.name()));
}

} // namespace
} // namespace norvepa::test
