#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

#include <string_view>

using namespace norvepa;

namespace
{

// Such log devices are known by their names alone.
bool IsVmdIdentity(std::wstring_view logDevice)
{
    return Holds(logDevice, L"*_/VMDID") || Holds(logDevice, L"PC internal");
}

} // namespace

int32_t LogDeviceDelVmdIdBL(const wchar_t* LogDevice)
{
    return RunExport("LogDeviceDelVmdIdBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s", TraceToAnsi(LogDevice));
        if (IsMissing(LogDevice) || !IsVmdIdentity(LogDevice))
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        // Nobody is asked and nobody is told: others learn it from the folder's watch.
        return frame.Return(NorvXMLDeleteFile(LogDeviceFile(dataFolder, LogDevice).c_str()));
    });
}
