#include "DebuggerTrace.h"

#include "trace/Norvotrc.h"

namespace norvepa::test
{

DebuggerTrace::DebuggerTrace(const std::wstring& level)
{
    SetMachineText(TraceKey, L"Level", level);
    SetMachineText(TraceKey, L"Format", L"TEXT");
    SetMachineText(TraceKey, L"Output", L"DBG");
    SetMachineText(TraceKey, L"Module", L"XML");
    TraceInit(nullptr, "norvepaBl64x");
}

DebuggerTrace::~DebuggerTrace()
{
    DeleteMachineKey(TraceKey);
    TraceInit(nullptr, "norvepaBl64x");
}

std::vector<std::string> DebuggerTrace::lines() const
{
    std::vector<std::string> lines = m_debugger.heard();
    for (std::string& line : lines)
    {
        line.erase(line.find_last_not_of('\n') + 1);
    }
    return lines;
}

} // namespace norvepa::test
