#include "trace/TraceOutputs.h"

#include "trace/TraceDebugger.h"
#include "trace/TraceDriver.h"
#include "trace/TraceEngine.h"
#include "trace/TraceFile.h"
#include "trace/TraceRecord.h"
#include "trace/TraceRing.h"
#include "win/Lasting.h"

namespace norvepa
{

namespace
{

constexpr std::string_view UnknownOutput =
    "Fehler im Kelvex-Tracesystem, bitte wenden Sie sich an den Hersteller !";

constinit TraceFile file;
constinit win::Lasting<TraceDriver> driver;
constinit win::Lasting<TraceRing> ring;
constinit win::Lasting<TraceEngine> engine;

void EmitFault(const TraceSettings& settings, std::string_view fault) noexcept
{
    TraceLine line("E ");
    line.Append(fault);
    WriteTraceLine(settings, line.view());
}

void PrepareDriver(const TraceSettings& before) noexcept
{
    if (driver.Get() != nullptr)
    {
        return;
    }
    TraceDriver opened;
    if (opened.error() != ERROR_SUCCESS)
    {
        EmitFault(before, DriverFault(opened.error()));
        return;
    }
    driver.Publish(std::move(opened));
}

void PrepareRing(std::uint32_t ringBytes, SECURITY_ATTRIBUTES* security) noexcept
{
    if (ring.Get() != nullptr)
    {
        return;
    }
    if (auto attached = TraceRing::Attach(ringBytes, security))
    {
        ring.Publish(std::move(*attached));
    }
}

void PrepareEngine() noexcept
{
    if (engine.Get() != nullptr)
    {
        return;
    }
    if (auto loaded = TraceEngine::Load())
    {
        engine.Publish(std::move(*loaded));
    }
}

template <typename Output>
void WriteIfThere(win::Lasting<Output>& output, std::string_view line) noexcept
{
    if (Output* made = output.Get())
    {
        made->Write(line);
    }
}

} // namespace

void PrepareTraceOutput(const TraceSettings& settings, const TraceSettings& before,
                        SECURITY_ATTRIBUTES* security) noexcept
{
    switch (settings.output)
    {
    case TraceOutput::Driver:
        return PrepareDriver(before);
    case TraceOutput::Pipe:
        return EmitFault(before, UnknownOutput);
    case TraceOutput::File:
        return file.Choose(settings.fileBase.view());
    case TraceOutput::SharedMemory:
        return PrepareRing(settings.ringBytes, security);
    case TraceOutput::Engine:
        return PrepareEngine();
    case TraceOutput::Com1:
    case TraceOutput::Com2:
    case TraceOutput::Debugger:
        return;
    }
}

void WriteTraceLine(const TraceSettings& settings, std::string_view line) noexcept
{
    switch (settings.output)
    {
    case TraceOutput::Driver:
        return WriteIfThere(driver, line);
    case TraceOutput::File:
        return file.Write(settings.fileBase.view(), settings.bytesPerFile, line);
    case TraceOutput::SharedMemory:
        return WriteIfThere(ring, line);
    case TraceOutput::Debugger:
        return WriteToDebugger(line);
    case TraceOutput::Engine:
        return WriteIfThere(engine, line);
    case TraceOutput::Com1:
    case TraceOutput::Com2:
    case TraceOutput::Pipe:
        return; // accepted, and nothing is written
    }
}

void CloseTraceOutputs() noexcept
{
    driver.LetGo();
    ring.LetGo();
    engine.LetGo();
}

} // namespace norvepa
