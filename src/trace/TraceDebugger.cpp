#include "trace/TraceDebugger.h"

#include "trace/TraceRecord.h"

namespace norvepa
{

void WriteToDebugger(std::string_view line) noexcept
{
    FixedText<TraceLineLimit + 1> text(line);
    text.Append("\n");
    OutputDebugStringA(text.c_str());
}

void TellDebuggerOfMissing(const char* object, DWORD error) noexcept
{
    FixedText<100> text;
    text.Print("ERROR: Can't create %s, GetLastError()=%d \n", object, static_cast<int>(error));
    OutputDebugStringA(text.c_str());
}

} // namespace norvepa
