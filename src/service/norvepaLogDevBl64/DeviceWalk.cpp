#include "service/norvepaLogDevBl64/DeviceWalk.h"

#include "frame/TemporaryName.h"
#include "frame/Text.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

namespace norvepa
{

DeviceWalk::DeviceWalk(const ExportFrame& frame, const wchar_t* netType, std::uint32_t capacity)
    : m_frame(frame),
      m_netType(netType),
      m_capacity(capacity),
      m_dataFolder(GetDataFolder()),
      m_files(LogDeviceFolder(m_dataFolder), m_dataFolder),
      m_look(LogDeviceFolder(m_dataFolder))
{
}

Result DeviceWalk::Next(std::wstring& name)
{
    Result result = NextCandidate(name);
    while (result == PGSP_OK && !IsEnumerated(name))
    {
        result = NextCandidate(name);
    }
    return result;
}

Result DeviceWalk::NextCandidate(std::wstring& name)
{
    if (m_capacity == 0)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const Result result = m_files.At(m_position, &name);
    if (result == PGSP_OK && name.size() >= m_capacity)
    {
        return PGSP_ERR_BUFFER_TOO_SHORT;
    }
    ++m_position;
    return result;
}

// All of it is read ahead of the tests, in this order.
bool DeviceWalk::IsEnumerated(const std::wstring& name) const
{
    std::wstring hidden;
    const Result hiddenRead = LogDeviceGetNdiValue(m_dataFolder, name.c_str(), L"hidden", &hidden);
    std::wstring type;
    const Result typeRead = m_netType == nullptr
                                ? PGSP_OK
                                : PGSP_LogDeviceGetValue(m_dataFolder, name.c_str(), L"CP_TYPE", &type);

    if (hiddenRead == PGSP_OK && EqualNoCase(hidden, L"true"))
    {
        return false;
    }
    if (m_netType != nullptr && (typeRead != PGSP_OK || !EqualNoCase(type, m_netType)))
    {
        return false;
    }
    if (name.starts_with(TemporaryPrefix))
    {
        NORV_TRACE(m_frame, TraceInfo, "temporary LogDevice skipped");
        return false;
    }
    return true;
}

void TraceEnumEntry(const ExportFrame& frame, const wchar_t* netType, std::uint32_t index, TracePlace place)
{
    if (netType == nullptr)
    {
        NORV_TRACE_AT(place, frame, TraceEntry, ">> lpszNetType = NULL, index = %d", index);
        return;
    }
    NORV_TRACE_AT(place, frame, TraceEntry, ">> lpszNetType = %s, index = %d", TraceToAnsi(netType), index);
}

void TraceEnumFound(const ExportFrame& frame, const std::wstring& name, std::uint32_t index, TracePlace place)
{
    NORV_TRACE_AT(place, frame, TraceExit, "<< return LogDeviceName = %s, LogDeviceLen = %d, index = %d",
                  TraceToAnsi(name.c_str()), static_cast<std::uint32_t>(name.size()), index);
}

void TraceEnumEnd(const ExportFrame& frame, Result result, TracePlace place)
{
    NORV_TRACE_AT(place, frame, TraceExit, "<< lRet=0x%x", static_cast<unsigned>(result));
}

} // namespace norvepa
