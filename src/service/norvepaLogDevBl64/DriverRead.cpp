#include "handover/DriverRead.h"

#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "norvepa.h"

using namespace norvepa;

int32_t norvDriverReadLogDevice(const wchar_t* LogDevice, uint8_t** outBuffer, uint32_t* outLength)
{
    return RunExport("norvDriverReadLogDevice: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s", TraceToAnsi(LogDevice));
        if (IsMissing(LogDevice) || outBuffer == nullptr || outLength == nullptr)
        {
            return frame.InvalidParameters();
        }

        DriverReadContext context;
        Result result = DriverLoadLogDevice(context, LogDevice);
        if (result == PGSP_OK)
        {
            result = DriverBuildRecords(context, outBuffer, outLength);
        }
        return frame.Return(result);
    });
}
