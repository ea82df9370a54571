#include "endurance/Desks.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace norvepa::test
{

namespace
{

constexpr ULONGLONG Patience = 60'000; // milliseconds
constexpr DWORD RoundOfTheWatchman = 500;

std::atomic<const Desks*> desksOfTheProcess = nullptr;

[[noreturn]] void EndProcess()
{
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 1);
    std::abort();
}

// Where in a module something happened, for whoever has its symbols.
void TellPlace(const void* address)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const wchar_t*>(address), &module);
    char name[MAX_PATH] = "(no module)";
    GetModuleFileNameA(module, name, MAX_PATH);
    std::printf("  %s + 0x%llx\n", name,
                static_cast<unsigned long long>(static_cast<const char*>(address) -
                                                reinterpret_cast<const char*>(module)));
}

using SignalHandler = void (*)(int);

// Also in the run-time library that engines of the system use, which isn't the one that this program has.
void OnAbort(SignalHandler handler)
{
    std::signal(SIGABRT, handler);
    using Signal = SignalHandler(int, SignalHandler);
    const HMODULE others = GetModuleHandleW(L"ucrtbase.dll");
    if (const FARPROC signal = others == nullptr ? nullptr : GetProcAddress(others, "signal"))
    {
        reinterpret_cast<Signal*>(reinterpret_cast<void*>(signal))(SIGABRT, handler);
    }
}

} // namespace

Desks::Desks()
    : m_filterBefore(SetUnhandledExceptionFilter(TellOfException)),
      m_watchman([this](const std::stop_token& stop) { Watch(stop); })
{
    desksOfTheProcess = this;
    OnAbort(TellOfAbort);
}

Desks::~Desks()
{
    OnAbort(SIG_DFL);
    desksOfTheProcess = nullptr;
    SetUnhandledExceptionFilter(m_filterBefore);
}

Desks::Task::Task(Desks& desks, std::size_t desk, const char* name, std::uint64_t card)
    : m_name(desks.m_desks.at(desk).name)
{
    Desk& mine = desks.m_desks.at(desk);
    mine.card = card;
    mine.thread = GetCurrentThreadId();
    mine.begin = GetTickCount64();
    mine.name = name;
}

Desks::Task::~Task()
{
    m_name = nullptr;
}

LONG WINAPI Desks::TellOfException(EXCEPTION_POINTERS* exception)
{
    std::printf("exception 0x%lx\n", exception->ExceptionRecord->ExceptionCode);
    TellPlace(exception->ExceptionRecord->ExceptionAddress);
    TellWhoWasAtWhat();
    EndProcess();
}

void Desks::TellOfAbort(int)
{
    std::printf("abort\n");
    TellWhoWasAtWhat();
    EndProcess();
}

void Desks::TellWhoWasAtWhat()
{
    const Desks* const desks = desksOfTheProcess;
    if (desks == nullptr)
    {
        return;
    }
    for (const Desk& desk : desks->m_desks)
    {
        const char* const name = desk.name;
        if (name != nullptr)
        {
            std::printf("  %s %s, card %llu\n", desk.thread == GetCurrentThreadId() ? "in" : "beside", name,
                        static_cast<unsigned long long>(desk.card));
        }
    }
}

void Desks::Watch(const std::stop_token& stop) const
{
    while (!stop.stop_requested())
    {
        Sleep(RoundOfTheWatchman);
        const ULONGLONG now = GetTickCount64();
        for (const Desk& desk : m_desks)
        {
            const ULONGLONG begin = desk.begin;
            const char* const name = desk.name;
            if (name != nullptr && desk.begin == begin && now > begin + Patience)
            {
                std::printf("%s doesn't come back, card %llu\n", name,
                            static_cast<unsigned long long>(desk.card));
                EndProcess();
            }
        }
    }
}

} // namespace norvepa::test
