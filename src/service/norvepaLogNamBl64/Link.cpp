#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "store/norvxml.h"

#include <windows.h>

using namespace norvepa;

int32_t LogNameSetLogDeviceBL(const wchar_t* LogName, const wchar_t* LogDevice)
{
    return RunExport("LogNameSetLogDeviceBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s, LogDevice = %s", TraceToAnsi(LogName),
                   TraceToAnsi(LogDevice));
        if (IsMissing(LogName) || LogDevice == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        // Only another thread's lock stops; a question that fails doesn't.
        if (PGSP_LogDeviceLink_bIsLockedBL(LogName) == PGSP_LOCKED_BY_OTHER_THREAD)
        {
            return PGSP_LOCKED_BY_OTHER_THREAD;
        }
        const bool links = *LogDevice != L'\0';
        const std::wstring deviceFile = LogDeviceFile(dataFolder, LogDevice);
        if (links && NorvXMLFileExists(deviceFile.c_str()) != PGSP_ERR_FILE_EXISTS)
        {
            NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_LOG_DEVICE_NOT_EXISTS");
            return PGSP_ERR_LOG_DEVICE_NOT_EXISTS;
        }

        const Result result{LogNameSetValueBL(LogName, L"LogDevice", LogDevice)};
        // Tried whatever became of the link, and nobody asks how it went: an unlinked name keeps its old
        // type.
        std::wstring type;
        if (PGSP_LogDeviceGetValue(LogDevice, L"CP_TYPE", &type) == PGSP_OK)
        {
            LogNameSetValueBL(LogName, L"CP_TYPE", type.c_str());
        }
        return frame.Return(result);
    });
}

namespace norvepa
{

Result PGSP_LogDeviceLink_bIsLockedBL(const wchar_t* LogName)
{
    const ExportFrame frame{"PGSP_LogDeviceLink_bIsLockedBL: "};

    NORV_TRACE(frame, TraceEntry, ">> LogName = %s", TraceToAnsi(LogName));
    if (IsMissing(LogName))
    {
        return frame.InvalidParameters();
    }
    const std::wstring dataFolder = GetDataFolder();
    if (dataFolder.empty())
    {
        return frame.FolderNotFound("Can not get ProgramData Path");
    }

    std::wstring holder;
    const Result read = NorvXMLGetValue(LogNameFile(dataFolder, LogName).c_str(), ParametersSection,
                                        L"LOCKED_BY_THREAD_POINTER", &holder);
    if (read != PGSP_OK || holder.empty())
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_NOT_LOCKED");
        return PGSP_OK;
    }
    const bool isOurs = EqualNoCase(holder, std::to_wstring(GetCurrentThreadId()));
    return frame.Return(isOurs ? PGSP_LOCKED_BY_THIS_THREAD : PGSP_LOCKED_BY_OTHER_THREAD);
}

} // namespace norvepa
