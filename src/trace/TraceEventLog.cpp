#include "trace/TraceEventLog.h"

#include <windows.h>

#include <array>
#include <span>

namespace norvepa
{

namespace
{

constexpr wchar_t SourceName[] = L"Norvotrc.c";
constexpr WORD Category = 1;

class EventSource
{
public:
    EventSource() noexcept : m_source(RegisterEventSourceW(nullptr, SourceName)) {}
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;
    ~EventSource()
    {
        if (m_source != nullptr)
        {
            DeregisterEventSource(m_source);
        }
    }

    void Report(TraceFault fault, std::span<const char*> strings) const noexcept
    {
        if (m_source != nullptr)
        {
            ReportEventA(m_source, EVENTLOG_ERROR_TYPE, Category, static_cast<DWORD>(fault), nullptr,
                         static_cast<WORD>(strings.size()), 0, strings.data(), nullptr);
        }
    }

private:
    HANDLE m_source;
};

} // namespace

void LogTraceFault(TraceFault fault, const char* what) noexcept
{
    std::array strings{what};
    EventSource().Report(fault, strings);
}

void LogTraceFault(TraceFault fault, const char* what, const char* line) noexcept
{
    std::array strings{what, line};
    EventSource().Report(fault, strings);
}

} // namespace norvepa
