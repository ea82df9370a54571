#include "frame/FileNames.h"
#include "norvepa.h"
#include "service/AccessTest.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

int32_t LogDeviceExistBL(const wchar_t* LogDevice, int32_t flag)
{
    return RunExport("LogDeviceExistBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, flag = %d", TraceToAnsi(LogDevice), flag);
        if (LogDevice == nullptr || !IsAccessMode(flag))
        {
            return frame.InvalidParameters();
        }
        std::wstring escaped;
        if (const Result result = EscapePath(LogDevice, escaped); result != PGSP_OK)
        {
            return frame.Return(result);
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        if (const auto name = SplitSubdevice(LogDevice))
        {
            const Result result =
                NorvXMLSubdevExists(LogDeviceFile(dataFolder, name->device).c_str(), name->subdevice.c_str());
            NORV_TRACE(frame, TraceExit, "<< SubdeviceExist for = %s : returned = %d", TraceToAnsi(LogDevice),
                       result);
            return result;
        }

        std::wstring file = LogDeviceFile(dataFolder, escaped);
        NORV_TRACE(frame, TraceInfo, "Calling _waccess_s for Logdevice: %s", TraceToAnsi(file.c_str()));
        ExtendByAnywhereRule(file);
        return TestAccess(frame, file, flag);
    });
}
