#include "NotifyScene.h"

#include "notify/NotifyRegistration.h"
#include "notify/SendNotification.h"

#include <stdexcept>

namespace norvepa::test
{

NotifyScene::~NotifyScene()
{
    workers.Await();
    FreeNotifyRegistrations();
}

void NotifyScene::Register(const wchar_t* folderName, const wchar_t* fileName, const NamedEvent& event)
{
    if (RegisterNotification(folderName, fileName, event.c_str()) != PGSP_OK)
    {
        throw std::runtime_error("the event isn't registered");
    }
}

void NotifyScene::Announce(const wchar_t* folderName, const wchar_t* fileName) const
{
    SendNotificationBL(folderName, fileName, L"5");
    workers.Await();
}

std::vector<std::wstring> NotifyScene::RegisteredEvents()
{
    const std::lock_guard lock(notifyRegisterMutex);
    std::vector<std::wstring> names;
    if (notifyRegisterList)
    {
        for (const auto& registration : *notifyRegisterList)
        {
            names.emplace_back(registration->EventName.view());
        }
    }
    return names;
}

bool NotifyScene::HasList()
{
    const std::lock_guard lock(notifyRegisterMutex);
    return notifyRegisterList != nullptr;
}

} // namespace norvepa::test
