#include "notify/SendNotification.h"

#include "frame/Arguments.h"
#include "frame/TemporaryName.h"
#include "frame/Text.h"
#include "notify/NotifyRegistration.h"
#include "trace/TraceStatement.h"
#include "win/Handle.h"

#include <windows.h>

#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

namespace
{

constexpr TraceSource workerSource{"NotifiyThread: ", " BL"};

// What a worker needs, its own copies: the caller's strings may be gone by the time it runs.
struct Change
{
    std::wstring folderName;
    std::wstring fileName;
    win::Library self; // keeps the module loaded until the worker has returned
};

void DropDeadRegistration(const NotifyRegistration* registration, const std::wstring& eventName, DWORD error)
{
    NORV_TRACE(workerSource, TraceWarning, "OpenEvent: %s nicht m\xF6glich, Error: 0x%x",
               TraceToAnsi(eventName.c_str()), static_cast<unsigned>(error));
    NORV_TRACE(workerSource, TraceInfo, "before del len of notifyRegisterList: %d",
               static_cast<int>(notifyRegisterList->size()));
    NORV_TRACE(workerSource, TraceInfo, "free 0x%x", TraceAddress(registration));
    const std::size_t left = notifyRegisterList->size() - 1;
    RemoveRegistration(registration);
    NORV_TRACE(workerSource, TraceInfo, "after del len of notifyRegisterList: %d", static_cast<int>(left));
}

// Sets the registrant's event. One that can't be opened, for whatever reason, marks a registrant that is
// gone.
void Notify(const NotifyRegistration* registration)
{
    // Made ahead of the statements that tell it: one that ran out of memory would keep the mutex of all
    // processes.
    const std::wstring eventName(registration->EventName.view());
    const win::Handle event(OpenEventW(EVENT_MODIFY_STATE, TRUE, eventName.c_str()));
    if (!event)
    {
        DropDeadRegistration(registration, eventName, GetLastError());
        return;
    }
    const std::wstring_view fileName = registration->FileName.view();
    NORV_TRACE(workerSource, TraceInfo, "Notify f\xFCr Datei %s und Event %s",
               TraceToAnsi(fileName.data(), fileName.size()), TraceToAnsi(eventName.c_str()));
    SetEvent(event.get());
}

void NotifiyThread(std::wstring_view folderName, std::wstring_view fileName)
{
    NORV_TRACE(workerSource, TraceEntry, ">> NotifiyThread");
    const std::lock_guard lock(notifyRegisterMutex);
    if (!notifyRegisterList)
    {
        NORV_TRACE(workerSource, TraceInfo, "Error : notifyRegisterList == NULL");
        return;
    }

    std::vector<const NotifyRegistration*> selected;
    for (const auto& registration : *notifyRegisterList)
    {
        if (registration->IsFor(folderName, fileName))
        {
            selected.push_back(registration.get());
        }
    }
    for (const NotifyRegistration* const registration : selected)
    {
        Notify(registration);
    }
    NORV_TRACE(workerSource, TraceExit, "<< NotifiyThread");
}

// Runs the worker and lets go of all that it held. What memory ran out for is lost; the change stands.
HMODULE RunWorker(Change* argument) noexcept
{
    const std::unique_ptr<Change> change(argument);
    try
    {
        NotifiyThread(change->folderName, change->fileName);
    }
    catch (...)
    {
        NORV_TRACE(workerSource, TraceWarning, "Error: notification failed");
    }
    return change->self.release();
}

DWORD WINAPI WorkerMain(void* argument)
{
    // The last of the module's code on this thread: the reference may be the one that keeps it loaded.
    FreeLibraryAndExitThread(RunWorker(static_cast<Change*>(argument)), 0);
}

win::Library ReferenceToSelf()
{
    HMODULE self = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&WorkerMain), &self);
    return win::Library(self);
}

// ERROR_SUCCESS, or why there is no worker.
DWORD StartWorker(const wchar_t* folderName, const wchar_t* fileName) noexcept
try
{
    auto change =
        std::make_unique<Change>(Change{std::wstring(TextOrEmpty(folderName)), fileName, ReferenceToSelf()});
    const win::Handle worker(CreateThread(nullptr, 0, &WorkerMain, change.get(), 0, nullptr));
    if (!worker)
    {
        return GetLastError();
    }
    static_cast<void>(change.release()); // the worker's now
    return ERROR_SUCCESS;
}
catch (const std::bad_alloc&)
{
    return ERROR_OUTOFMEMORY;
}

} // namespace

void SendNotificationBL(const wchar_t* FolderName, const wchar_t* FileName, const wchar_t* Code) noexcept
{
    constexpr TraceSource source{"SendNotificationBL: ", " BL"};

    NORV_TRACE(source, TraceEntry, ">> SendNotificationBL");
    if (FileName == nullptr || Code == nullptr)
    {
        return;
    }
    if (Holds(FileName, TemporaryPrefix))
    {
        NORV_TRACE(source, TraceExit, "<< exclude TempLogDevices");
        return;
    }

    // The change stands whatever becomes of its announcement.
    if (const DWORD error = StartWorker(FolderName, FileName); error != ERROR_SUCCESS)
    {
        NORV_TRACE(source, TraceWarning, "Error: the notification thread can not be started, Error: 0x%x",
                   static_cast<unsigned>(error));
    }
}

} // namespace norvepa
