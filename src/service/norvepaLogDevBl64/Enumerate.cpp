#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"
#include "store/norvxmlCatalogue.h"

using namespace norvepa;

namespace
{

constexpr std::wstring_view TemporaryPrefix = L"PGSP_TEMP_LOG_DEVICE____";

// The file at an index, for a buffer of this capacity: a name that doesn't fit ends the enumeration wherever
// it stands.
Result CandidateAt(const std::wstring& folder, std::uint32_t index, std::uint32_t capacity,
                   std::wstring& name)
{
    if (capacity == 0)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const Result result = NorvXMLEnumFile(folder.c_str(), index, &name);
    return result == PGSP_OK && name.size() >= capacity ? PGSP_ERR_BUFFER_TOO_SHORT : result;
}

// False for a log device that is hidden, of another type than the filter's, or temporary. All of it is read
// ahead of the tests, in this order.
bool IsEnumerated(const ExportFrame& frame, const std::wstring& name, const wchar_t* netType)
{
    std::wstring hidden;
    const Result hiddenRead = LogDeviceGetNdiValue(name.c_str(), L"hidden", &hidden);
    std::wstring type;
    const Result typeRead =
        netType == nullptr ? PGSP_OK : PGSP_LogDeviceGetValue(name.c_str(), L"CP_TYPE", &type);

    if (hiddenRead == PGSP_OK && EqualNoCase(hidden, L"true"))
    {
        return false;
    }
    if (netType != nullptr && (typeRead != PGSP_OK || !EqualNoCase(type, netType)))
    {
        return false;
    }
    if (name.starts_with(TemporaryPrefix))
    {
        NORV_TRACE(frame, TraceInfo, "temporary LogDevice skipped");
        return false;
    }
    return true;
}

void TraceEntryOf(const ExportFrame& frame, const wchar_t* netType, std::uint32_t index)
{
    if (netType == nullptr)
    {
        NORV_TRACE(frame, TraceEntry, ">> lpszNetType = NULL, index = %d", index);
        return;
    }
    NORV_TRACE(frame, TraceEntry, ">> lpszNetType = %s, index = %d", TraceToAnsi(netType), index);
}

} // namespace

int32_t LogDeviceGetEnumBL(const wchar_t* lpszNetType, uint32_t index, wchar_t* LogDevice,
                           uint32_t* LogDeviceLen)
{
    return RunExport("LogDeviceGetEnumBL: ", [&](const ExportFrame& frame) -> Result {
        TraceEntryOf(frame, lpszNetType, index);
        if (LogDevice == nullptr || LogDeviceLen == nullptr)
        {
            return frame.InvalidParameters();
        }

        // Without a data folder the path is relative; no code tells that here.
        const std::wstring folder = LogDeviceFolder(GetDataFolder());
        std::wstring candidate;
        std::uint32_t remaining = index;
        for (std::uint32_t i = 0;; ++i)
        {
            const Result result = CandidateAt(folder, i, *LogDeviceLen, candidate);
            if (result != PGSP_OK)
            {
                NORV_TRACE(frame, TraceExit, "<< lRet=0x%x", static_cast<unsigned>(result));
                return result;
            }
            if (IsEnumerated(frame, candidate, lpszNetType) && remaining-- == 0)
            {
                break;
            }
        }

        const Result result = CopyOut(candidate, LogDevice, LogDeviceLen);
        NORV_TRACE(frame, TraceExit, "<< return LogDeviceName = %s, LogDeviceLen = %d, index = %d",
                   TraceToAnsi(candidate.c_str()), *LogDeviceLen, index);
        return result;
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
