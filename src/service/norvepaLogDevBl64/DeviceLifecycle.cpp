#include "frame/Arguments.h"
#include "frame/TemporaryName.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "notify/SendNotification.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/FileSteps.h"
#include "store/ProvisionalFile.h"
#include "store/norvxml.h"

#include <windows.h>

using namespace norvepa;

namespace
{

// What an original may be, its copy isn't: hidden, or kept from being removed. That these can't be set is no
// failure of the copy.
void MakeVisibleAndDeletable(const wchar_t* logDevice)
{
    static_cast<void>(AnswerOf(PGSP_LogDeviceSetNdiBL(logDevice, L"enable_delete", L"true", 0)));
    static_cast<void>(AnswerOf(PGSP_LogDeviceSetNdiBL(logDevice, L"hidden", L"false", 0)));
}

} // namespace

int32_t LogDeviceCreateFromDefBL(const wchar_t* DefLogDeviceName, const wchar_t* LogDeviceName)
{
    return RunExport("LogDeviceCreateFromDefBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DefLogDeviceName = %s, LogDeviceName = %s",
                   TraceToAnsi(DefLogDeviceName), TraceToAnsi(LogDeviceName));
        if (IsMissing(DefLogDeviceName) || IsMissing(LogDeviceName))
        {
            return frame.InvalidParameters();
        }
        const std::wstring name = MakeTemplateName(DefLogDeviceName);
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get Corvane OAM path from Program Files");
        }

        const std::wstring dataFolder = GetDataFolder();
        CreateDirectoryW(LogDeviceFolder(dataFolder).c_str(), nullptr);
        const std::wstring original = TemplateFile(programFolder, name);
        if (NorvXMLFileExists(original.c_str()) != PGSP_ERR_FILE_EXISTS)
        {
            return frame.Return(PGSP_ERR_FILE_NOT_FOUND);
        }
        const std::wstring file = LogDeviceFile(dataFolder, LogDeviceName);
        const Result result = NorvXMLCopyFile(original.c_str(), file.c_str());
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogDevicesWord, LogDeviceName, L"2");
        }
        return frame.Return(result);
    });
}

int32_t LogDeviceCopyBL(const wchar_t* CopyFromLogDevice, const wchar_t* CopyToLogDevice)
{
    return RunExport("LogDeviceCopyBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> CopyFromLogDevice = %s, CopyToLogDevice = %s",
                   TraceToAnsi(CopyFromLogDevice), TraceToAnsi(CopyToLogDevice));
        if (IsMissing(CopyFromLogDevice) || IsMissing(CopyToLogDevice))
        {
            return frame.InvalidParameters();
        }

        const std::wstring dataFolder = GetDataFolder();
        const std::wstring original = LogDeviceFile(dataFolder, CopyFromLogDevice);
        const std::wstring file = LogDeviceFile(dataFolder, CopyToLogDevice);
        const Copying copying(original.c_str(), file.c_str());
        const Result result = copying.Run();
        if (result == PGSP_OK)
        {
            const ProvisionalFile provisional(copying.newFile());
            MakeVisibleAndDeletable(CopyToLogDevice);
            SendNotificationBL(LogDevicesWord, CopyToLogDevice, L"2");
        }
        return frame.Return(result);
    });
}

int32_t LogDeviceDelBL(const wchar_t* LogDevice, int32_t AllowStdDelete)
{
    return RunExport("LogDeviceDelBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s AllowStdDelete = %d", TraceToAnsi(LogDevice),
                   AllowStdDelete);
        if (IsMissing(LogDevice))
        {
            return frame.InvalidParameters();
        }

        if (AllowStdDelete == 0 && !IsTemporaryToDelete(LogDevice))
        {
            std::wstring permission;
            if (const Result result = LogDeviceGetNdiValue(LogDevice, L"enable_delete", &permission);
                result != PGSP_OK)
            {
                NORV_TRACE(frame, TraceInfo, "Can not find psrsmeter enable_delete");
                return frame.Return(result);
            }
            if (!EqualNoCase(permission, L"true"))
            {
                NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_LOG_DEVICE_NOT_DELETABLE");
                return PGSP_ERR_LOG_DEVICE_NOT_DELETABLE;
            }
        }

        const Result result = NorvXMLDeleteFile(LogDeviceFile(GetDataFolder(), LogDevice).c_str());
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogDevicesWord, LogDevice, L"3");
        }
        return frame.Return(result);
    });
}
