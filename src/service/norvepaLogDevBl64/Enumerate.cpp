#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/DeviceWalk.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// The item at an index: as many steps and one.
Result StepTo(DeviceWalk& walk, std::uint32_t index, std::wstring& name)
{
    Result result = walk.Next(name);
    for (std::uint32_t step = 0; result == PGSP_OK && step < index; ++step)
    {
        result = walk.Next(name);
    }
    return result;
}

} // namespace

int32_t LogDeviceGetEnumBL(const wchar_t* lpszNetType, uint32_t index, wchar_t* LogDevice,
                           uint32_t* LogDeviceLen)
{
    return RunExport("LogDeviceGetEnumBL: ", [&](const ExportFrame& frame) -> Result {
        TraceEnumEntry(frame, lpszNetType, index);
        if (LogDevice == nullptr || LogDeviceLen == nullptr)
        {
            return frame.InvalidParameters();
        }

        DeviceWalk walk(frame, lpszNetType, *LogDeviceLen);
        std::wstring name;
        if (const Result result = StepTo(walk, index, name); result != PGSP_OK)
        {
            TraceEnumEnd(frame, result);
            return result;
        }
        TraceEnumFound(frame, name, index);
        return CopyOut(name, LogDevice, LogDeviceLen);
    });
}

int32_t LogDeviceGetEnumValueBL(const wchar_t* LogDevice, uint32_t index, wchar_t* Parameter,
                                uint32_t* parLen, wchar_t* Value, uint32_t* valLen)
{
    return RunExport("LogDeviceGetEnumValueBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, index = %d", TraceToAnsi(LogDevice), index);
        const PairBuffers pair{Parameter, parLen, Value, valLen};
        if (IsMissing(LogDevice) || !pair.HasBuffers() || !pair.HasLengths())
        {
            return frame.InvalidParameters();
        }

        const std::wstring file = LogDeviceFile(GetDataFolder(), LogDevice);
        const Result result = NorvXMLEnumValue(file.c_str(), index, pair);
        if (result != PGSP_OK)
        {
            return frame.Return(result);
        }
        NORV_TRACE(frame, TraceExit, "Parameter = %s, parLen = %d, Value = %s, valLen = %d",
                   TraceToAnsi(Parameter), *parLen, TraceToAnsi(Value), *valLen);
        return PGSP_OK;
    });
}
