#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/FileNames.h"
#include "norvepa.h"
#include "notify/SendNotification.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "store/norvxml.h"

#include <windows.h>
#include <io.h>

#include <cerrno>
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

namespace
{

bool IsAccessMode(int32_t flag)
{
    return flag == 0 || flag == 2 || flag == 4 || flag == 6;
}

Result ResultOfAccess(errno_t error)
{
    switch (error)
    {
    case 0:
        return PGSP_OK;
    case ENOENT:
        return PGSP_ERR_FILE_NOT_FOUND;
    case EACCES:
        return PGSP_ERR_ACCESS_DENIED;
    default:
        return PGSP_ERR_INVALID_PARAMETERS;
    }
}

} // namespace

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
        const errno_t error = _waccess_s(file.c_str(), flag);
        NORV_TRACE(frame, TraceExit, "<< errno_t err = %d", error);
        return ResultOfAccess(error);
    });
}
