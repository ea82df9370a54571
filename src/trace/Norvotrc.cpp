#include "trace/Norvotrc.h"

#include "trace/KeepErrno.h"
#include "trace/TraceCounter.h"
#include "trace/TraceMutex.h"
#include "trace/TraceOutputs.h"
#include "trace/TraceRecord.h"
#include "trace/TraceSettings.h"
#include "trace/TraceStatement.h"

#include <optional>

namespace norvepa
{

namespace
{

// Written under the trace mutex. Whoever goes on without it may meet a half-written setting, and nothing
// worse: there is no pointer in it, and every text in it has its end.
constinit TraceSettings settings;
constinit ULONGLONG lastConsult = 0; // milliseconds since the system's start

constinit std::optional<SECURITY_ATTRIBUTES> securityAttributes;
constinit FixedText<260> moduleName;

std::uint32_t SettingsCounter() noexcept
{
    return *trace_state::settingsCounter.load();
}

SECURITY_ATTRIBUTES* SecurityAttributes() noexcept
{
    return securityAttributes ? &*securityAttributes : nullptr;
}

void TraceReadSettings(SECURITY_ATTRIBUTES* security) noexcept
{
    MakeTraceMutex(security);
    MakeSettingsCounter();

    // Taken before anything is read: a change during the reading is then met by the next statement.
    const std::uint32_t counter = SettingsCounter();
    const TraceSettings before = settings;
    settings = ReadTraceSettings(before, moduleName.c_str());
    if (settings.configured)
    {
        const TraceGuard guard;
        PrepareTraceOutput(settings, before, security);
    }

    trace_state::levelMask.store(settings.levels);
    trace_state::settingsSnapshot.store(counter);
    lastConsult = GetTickCount64();
}

// Lets the next comparison with the counter fail; while the counter was never changed it doesn't.
void ForgetSnapshotWhenConsultIsDue() noexcept
{
    if (settings.consultSeconds == 0)
    {
        return;
    }
    const auto passed = static_cast<std::int64_t>((GetTickCount64() - lastConsult) / 1000);
    if (passed >= settings.consultSeconds)
    {
        trace_state::settingsSnapshot.store(0);
    }
}

bool PassesFilters(const TraceEvent& event) noexcept
{
    return settings.programs.PassesWhole(TraceProgramId) &&
           settings.components.PassesWhole(event.component) && settings.tags.PassesWhole(event.tag) &&
           settings.messages.PassesPrefix(event.text);
}

const char* OrEmpty(const char* text) noexcept
{
    return text == nullptr ? "" : text;
}

} // namespace

void TraceInit(SECURITY_ATTRIBUTES* security, const char* name) noexcept
{
    securityAttributes = security == nullptr ? std::nullopt : std::optional(*security);
    moduleName = OrEmpty(name);
    TraceReadSettings(SecurityAttributes());
}

void TraceEnd() noexcept
{
    trace_state::levelMask.store(0);
    trace_state::settingsSnapshot.store(trace_state::noSettingsCounter);
    CloseTraceOutputs();
    CloseSettingsCounter();
    CloseTraceMutex();
}

void TraceOut(const char* tag, std::uint32_t level, const char* component, std::uint32_t status,
              std::uint32_t extra, const char* sourceFile, int line, const char* text) noexcept
{
    const KeepErrno keepErrno;
    const TraceEvent event{OrEmpty(tag),        level, OrEmpty(component), status, extra,
                           OrEmpty(sourceFile), line,  OrEmpty(text)};

    ForgetSnapshotWhenConsultIsDue();
    if (SettingsCounter() != trace_state::settingsSnapshot.load())
    {
        TraceReadSettings(SecurityAttributes());
        if ((settings.levels & level) == 0)
        {
            return;
        }
    }
    if (!PassesFilters(event))
    {
        return;
    }
    if (const auto made = MakeTraceLine(MakeTraceRecord(event, settings), settings.format))
    {
        WriteTraceLine(settings, made->view());
    }
}

} // namespace norvepa
