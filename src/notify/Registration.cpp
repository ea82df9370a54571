#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "norvepa.h"
#include "notify/NotifyRegistration.h"

#include <algorithm>

using namespace norvepa;

namespace
{

bool IsRegistered(const wchar_t* eventName)
{
    return notifyRegisterList &&
           std::any_of(notifyRegisterList->begin(), notifyRegisterList->end(),
                       [&](const auto& each) { return each->EventName.Matches(eventName); });
}

// Without a file name, that of the record plays no part: a registration for one file is found as well.
bool IsTheOne(const NotifyRegistration& each, const wchar_t* folderName, const wchar_t* fileName,
              const wchar_t* eventName)
{
    return each.FolderName.Matches(folderName) && (IsMissing(fileName) || each.FileName.Matches(fileName)) &&
           each.EventName.Matches(eventName);
}

} // namespace

int32_t RegisterNotification(const wchar_t* FolderName, const wchar_t* FileName, const wchar_t* EventName)
{
    return RunExport("RegisterNotification: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> RegisterNotification FolderName=%s  FileName=%s  EventName=%s",
                   TraceToAnsi(FolderName), TraceToAnsi(FileName), TraceToAnsi(EventName));
        if (IsMissing(FolderName) || IsMissing(EventName))
        {
            return PGSP_ERR_INVALID_PARAMETERS;
        }

        const std::lock_guard lock(notifyRegisterMutex);
        if (IsRegistered(EventName))
        {
            NORV_TRACE(frame, TraceWarning, "Error: duplicate EventName, return");
            return PGSP_ERR_DUPLICATE_EVENT;
        }

        auto registration = std::make_unique<NotifyRegistration>(NotifyRegistration{
            TextField<128>(FolderName), TextField<256>(TextOrEmpty(FileName)), TextField<64>(EventName)});
        NORV_TRACE(frame, TraceWarning, "add Event to notifyRegisterList and return OK");
        AddRegistration(std::move(registration));
        return PGSP_OK;
    });
}

int32_t UnRegisterNotification(const wchar_t* FolderName, const wchar_t* FileName, const wchar_t* EventName)
{
    return RunExport("UnRegisterNotification: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> UnRegisterNotification FolderName=%s  FileName=%s  EventName=%s",
                   TraceToAnsi(FolderName), TraceToAnsi(FileName), TraceToAnsi(EventName));
        if (IsMissing(FolderName) || IsMissing(EventName))
        {
            return PGSP_ERR_INVALID_PARAMETERS;
        }

        const std::lock_guard lock(notifyRegisterMutex);
        if (!notifyRegisterList)
        {
            return PGSP_ERR_NOT_REGISTERED;
        }
        NORV_TRACE(frame, TraceInfo, "notifyRegisterList.Length %d",
                   static_cast<int>(notifyRegisterList->size()));
        const auto found =
            std::find_if(notifyRegisterList->begin(), notifyRegisterList->end(),
                         [&](const auto& each) { return IsTheOne(*each, FolderName, FileName, EventName); });
        if (found == notifyRegisterList->end())
        {
            return PGSP_ERR_NOT_REGISTERED;
        }

        NORV_TRACE(frame, TraceInfo, "free 0x%x", TraceAddress(found->get()));
        RemoveRegistration(found->get());
        return PGSP_OK;
    });
}
