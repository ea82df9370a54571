#include "support/DebuggerStrings.h"

#include <windows.h>

namespace norvepa::test
{

namespace
{

constexpr DWORD PrintToDebugger = 0x40010006; // DBG_PRINTEXCEPTION_C: the length, then the text

std::vector<std::string> strings;

LONG CALLBACK Hear(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == PrintToDebugger)
    {
        strings.emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

DebuggerStrings::DebuggerStrings() : m_handler(AddVectoredExceptionHandler(1, Hear))
{
    strings.clear();
}

DebuggerStrings::~DebuggerStrings()
{
    RemoveVectoredExceptionHandler(m_handler);
}

const std::vector<std::string>& DebuggerStrings::heard() const
{
    return strings;
}

} // namespace norvepa::test
