// What a trace statement costs: switched off, beside an empty loop and a function call, and switched on into
// a file. Ends with 1 when a statement that is switched off has evaluated an argument.

#include "PlainCall.h"
#include "Stopwatch.h"
#include "support/RedirectedRegistry.h"
#include "support/StoreRoots.h"
#include "support/TemporaryFolder.h"
#include "trace/Norvotrc.h"

#include <cstdio>

namespace
{

using namespace norvepa;
using namespace norvepa::bench;

constexpr TraceSource source{"LogNameGetValueBL: ", " BL"};
constexpr char format[] = ">> LogName = %s, Parameter = %s";
const wchar_t* volatile logName = L"Kessel#1";
const wchar_t* volatile parameter = L"LogDevice";

std::uint64_t evaluations = 0;

const char* Counted(const char* text) noexcept
{
    ++evaluations;
    return text;
}

void Nothing() noexcept {}

void Statement() noexcept
{
    NORV_TRACE(source, TraceEntry, format, Counted(TraceToAnsi(logName)), Counted(TraceToAnsi(parameter)));
}

void CallWithArgumentsAsTheyAre() noexcept
{
    PlainCall(source, TraceEntry, __FILE__, __LINE__, format, logName, parameter);
}

void CallWithArgumentsEvaluated() noexcept
{
    PlainCall(source, TraceEntry, __FILE__, __LINE__, format, TraceToAnsi(logName), TraceToAnsi(parameter));
}

// Goes by what stands in the redirected registry.
void ReadSettings()
{
    TraceInit(nullptr, "norvepaBl64x");
}

void SwitchOn(const test::TemporaryFolder& folder)
{
    test::SetMachineText(test::TraceKey, L"Level", L"0xD8");
    test::SetMachineText(test::TraceKey, L"Path", folder.path());
    ReadSettings();
}

void Print(const char* what, double nanoseconds, double off)
{
    std::printf("%-46s %12.2f ns %12.2f\n", what, nanoseconds, nanoseconds / off);
}

} // namespace

int main()
{
    const test::RedirectedRegistry registry;
    const test::TemporaryFolder folder;

    ReadSettings();
    const double nothing = MedianNanoseconds([] { Nothing(); });
    const double off = MedianNanoseconds([] { Statement(); });
    const std::uint64_t evaluationsWhileOff = evaluations;
    const double call = MedianNanoseconds([] { CallWithArgumentsAsTheyAre(); });
    const double callEvaluated = MedianNanoseconds([] { CallWithArgumentsEvaluated(); });
    SwitchOn(folder);
    const double on = MedianNanoseconds([] { Statement(); });

    std::printf("%-46s %15s %12s\n", "trace statement with two converted names", "median", "to \"off\"");
    Print("empty loop", nothing, off);
    Print("statement, switched off", off, off);
    Print("function call, arguments as they are", call, off);
    Print("function call, arguments evaluated", callEvaluated, off);
    Print("statement, switched on, into a file", on, off);
    std::printf("arguments evaluated: %llu while off, %llu while on\n",
                static_cast<unsigned long long>(evaluationsWhileOff),
                static_cast<unsigned long long>(evaluations - evaluationsWhileOff));
    return evaluationsWhileOff == 0 ? 0 : 1;
}
