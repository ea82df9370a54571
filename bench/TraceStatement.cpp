// What a trace statement costs: switched off, beside a loop without it; and switched on, into a file.

#include "trace/TraceStatement.h"

#include "Stopwatch.h"
#include "trace/Norvotrc.h"

#include <windows.h>

#include <atomic>
#include <fmt/format.h>
#include <string>

namespace
{

using namespace norvepa;

constexpr TraceSource source{"TraceStatementBench: ", " BL"};
constexpr wchar_t TraceKey[] = L"Software\\MARVOLT\\DRAVIK\\TrcParams";
constexpr unsigned StepsOff = 20'000'000;
constexpr unsigned StepsOn = 2'000;

std::atomic<unsigned> work{0}; // keeps the compiler from leaving the loops out
unsigned evaluations = 0;

int Evaluate(int value)
{
    ++evaluations;
    return value;
}

void Plain(unsigned step)
{
    work.store(step, std::memory_order_relaxed);
}

void Traced(unsigned step)
{
    NORV_TRACE(source, TraceInfo, "step %d of %s", Evaluate(static_cast<int>(step)),
               TraceToAnsi(L"the loop"));
    work.store(step, std::memory_order_relaxed);
}

// This process's own HKEY_LOCAL_MACHINE: the machine's trace settings stay out of it.
class OwnRegistry
{
public:
    OwnRegistry()
    {
        HKEY key = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, Name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                        &key, nullptr);
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, key);
        RegCloseKey(key);
    }
    ~OwnRegistry()
    {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, Name);
    }

    void Set(const wchar_t* name, const std::wstring& text) const
    {
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, TraceKey, name, REG_SZ, text.c_str(),
                        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }

private:
    static constexpr wchar_t Name[] = L"Software\\NorvepaBl64x.Bench";
};

std::wstring TemporaryFolder()
{
    wchar_t folder[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, folder);
    std::wstring path(folder);
    path.pop_back();
    return path;
}

} // namespace

int main()
{
    const OwnRegistry registry;
    TraceInit(nullptr, "norvepaBl64x");
    const double plain = bench::TimeOf(StepsOff, &Plain);
    const double off = bench::TimeOf(StepsOff, &Traced);
    const unsigned evaluatedOff = evaluations;

    registry.Set(L"Level", L"64");
    registry.Set(L"Path", TemporaryFolder());
    registry.Set(L"FileName", L"NorvBench");
    TraceInit(nullptr, "norvepaBl64x");
    const double on = bench::TimeOf(StepsOn, &Traced);

    fmt::print("trace statement\n");
    fmt::print("  loop without it          {:10.2f} ns\n", plain);
    fmt::print("  switched off             {:10.2f} ns   {:.2f} ns more, {} arguments evaluated\n", off,
               off - plain, evaluatedOff);
    fmt::print("  switched on, into a file {:10.0f} ns   {:.0f} times as much as off\n", on, on / off);
    return evaluatedOff == 0 ? 0 : 1;
}
