#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/FileNames.h"
#include "norvepa.h"
#include "notify/SendNotification.h"
#include "service/AccessTest.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "store/norvxml.h"

#include <windows.h>

#include <string>

using namespace norvepa;

int32_t LogNameCreateBL(const wchar_t* LogName)
{
    return RunExport("LogNameCreateBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s", TraceToAnsi(LogName));
        if (LogName == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        CreateDirectoryW(LogNameFolder(dataFolder).c_str(), nullptr);
        const std::wstring file = LogNameFile(dataFolder, LogName);
        Result result = NorvXMLCreateFile(file.c_str(), L"nam");
        if (result == PGSP_ERR_FILE_EXISTS)
        {
            NORV_TRACE(frame, TraceInfo, "LogName XML file exists");
        }
        if (result != PGSP_OK)
        {
            return frame.Return(result);
        }

        result = NorvXMLSetValue(file.c_str(), ParametersSection, L"enable_delete", L"true", L"string");
        if (result == PGSP_OK)
        {
            NORV_TRACE(frame, TraceInfo, "Create new LogName XML file");
            SendNotificationBL(LogNamesWord, LogName, L"2");
        }
        return frame.Return(result == PGSP_ERR_SAME_VALUE ? PGSP_OK : result);
    });
}

int32_t LogNameDeleteBL(const wchar_t* LogName)
{
    return RunExport("LogNameDeleteBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s", TraceToAnsi(LogName));
        if (LogName == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        // Neither `enable_delete` nor the lock word is asked, unlike for a log device.
        const Result result = NorvXMLDeleteFile(LogNameFile(dataFolder, LogName).c_str());
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogNamesWord, LogName, L"3");
        }
        return frame.Return(result);
    });
}

int32_t LogNameExistBL(const wchar_t* LogName, int32_t flag)
{
    return RunExport("LogNameExistBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s, flag = %d", TraceToAnsi(LogName), flag);
        if (LogName == nullptr || !IsAccessMode(flag))
        {
            return frame.InvalidParameters();
        }
        std::wstring escaped;
        if (const Result result = EscapePath(LogName, escaped); result != PGSP_OK)
        {
            return frame.Return(result);
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        std::wstring file = LogNameFile(dataFolder, escaped);
        NORV_TRACE(frame, TraceInfo, "Calling _waccess_s for LogName: %s", TraceToAnsi(file.c_str()));
        ExtendByAnywhereRule(file);
        return TestAccess(frame, file, flag);
    });
}
