#include "frame/Arguments.h"
#include "norvepa.h"
#include "notify/DeviceIdIndex.h"
#include "notify/directoryCache.h"
#include "service/norvepaLogDevBl64/DeviceWalk.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

using namespace norvepa;

namespace
{

// The text of a buffer that an export has filled.
std::wstring Filled(const std::array<wchar_t, PathCapacity>& buffer, std::uint32_t length)
{
    return std::wstring(buffer.data(), length);
}

// A log device of which one of the two can't be read stays out.
void AddToIndex(const std::wstring& logDevice)
{
    std::wstring deviceId;
    if (PGSP_LogDeviceGetValue(logDevice.c_str(), L"DeviceID", &deviceId) != PGSP_OK)
    {
        return;
    }
    std::array<wchar_t, PathCapacity> unit{};
    std::uint32_t length = PathCapacity;
    if (AnswerOf(LogDeviceGetValueBL(logDevice.c_str(), L"Unit", unit.data(), &length)) == PGSP_OK)
    {
        deviceIdIndex.Add(deviceId, logDevice, Filled(unit, length));
    }
}

// The enumeration of all log devices in one walk, traced as the calls that it stands for. Calls would begin
// anew for each index and read a thousand log devices half a million times, under the lock.
void Rebuild()
{
    const ExportFrame enumeration{"LogDeviceGetEnumBL: "};
    const StandingRoots roots;
    DeviceWalk walk(enumeration, nullptr, PathCapacity);
    std::wstring name;
    for (std::uint32_t index = 0;; ++index)
    {
        TraceEnumEntry(enumeration, nullptr, index);
        if (const Result result = walk.Next(name); result != PGSP_OK)
        {
            TraceEnumEnd(enumeration, result);
            return; // what has been gathered is the index, whatever ended it
        }
        TraceEnumFound(enumeration, name, index);
        AddToIndex(name);
    }
}

// An index that memory ran out for would go on answering without the log devices that it lacks.
void RebuildWhole()
try
{
    Rebuild();
}
catch (...)
{
    deviceIdIndex.MarkStale();
    throw;
}

Result CopyEntry(const ExportFrame& frame, const DeviceIdIndex::Entry* entry, wchar_t* logDevice,
                 std::uint32_t* logDeviceLength, wchar_t* unit, std::uint32_t* unitLength)
{
    if (entry == nullptr)
    {
        NORV_TRACE(frame, TraceInfo, " return PGSP_ERR_NO_MORE_ITEMS");
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    Result result = CopyOut(entry->logDevice, logDevice, logDeviceLength);
    if (result == PGSP_OK)
    {
        result = CopyOut(entry->unit, unit, unitLength);
    }
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceInfo, "return PGSP_ERR_BUFFER_TOO_SHORT");
    }
    return result;
}

} // namespace

int32_t LogDeviceGetEnumByDeviceIdBL(const wchar_t* DeviceID, uint32_t index, wchar_t* LogDevice,
                                     uint32_t* LogDeviceLen, wchar_t* Unit, uint32_t* UnitLen)
{
    return RunExport("LogDeviceGetEnumByDeviceIdBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DeviceID = %s, index = %d", TraceToAnsi(DeviceID), index);
        if (DeviceID == nullptr || LogDevice == nullptr || LogDeviceLen == nullptr || Unit == nullptr ||
            UnitLen == nullptr)
        {
            return frame.InvalidParameters();
        }

        const std::uint32_t nameCapacity = *LogDeviceLen;
        const std::uint32_t unitCapacity = *UnitLen;
        Result result = PGSP_OK;
        {
            // Held until the answer has been copied, so that others wait for a rebuild and don't repeat it.
            const std::lock_guard lock(deviceIdMutex);
            getDirectoryChange(GetDataFolder());
            if (!deviceIdIndex.IsValid())
            {
                RebuildWhole();
            }
            result =
                CopyEntry(frame, deviceIdIndex.Find(DeviceID, index), LogDevice, LogDeviceLen, Unit, UnitLen);
        }
        NORV_TRACE(frame, TraceExit, "<< return lRet = %d, LogDevice = %s, Unit = %s", result,
                   TraceToAnsi(LogDevice, nameCapacity), TraceToAnsi(Unit, unitCapacity));
        return result;
    });
}
