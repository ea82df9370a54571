#include "support/ProcessResources.h"

#include <windows.h>
#include <tlhelp32.h>

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <winternl.h>

namespace norvepa::test
{

namespace
{

// What NtQueryObject tells of a handle's kind; the system names the kind behind it.
struct KindOfHandle
{
    UNICODE_STRING name;
    ULONG counts[12];
    ULONG invalidAttributes;
    GENERIC_MAPPING mapping;
    ULONG validAccess;
    BOOLEAN isSecured;
    BOOLEAN isCounted;
    BYTE number;
    BYTE reserved;
    ULONG pool[3];
    wchar_t nameText[64];
};

constexpr OBJECT_INFORMATION_CLASS KindAsked = ObjectTypeInformation;
constexpr ULONG_PTR HandleStep = 4;
constexpr ULONG_PTR HandlesEnd = 0x10000; // low ones are given out first

// Asks for each that there could be. The system's table of all handles would tell it at once, but under Wine
// programs that start at that moment are lost.
void CountHandles(ProcessResources& resources)
{
    using Query = LONG WINAPI(HANDLE, OBJECT_INFORMATION_CLASS, void*, ULONG, ULONG*);
    static Query* const query = reinterpret_cast<Query*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryObject")));

    for (ULONG_PTR value = HandleStep; value < HandlesEnd; value += HandleStep)
    {
        KindOfHandle kind{};
        ULONG used = 0;
        if (query(reinterpret_cast<HANDLE>(value), KindAsked, &kind, sizeof kind, &used) == 0)
        {
            ++resources.handles.at(kind.number);
        }
    }
}

void CountBlocks(HANDLE heap, ProcessResources& resources)
{
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry) != FALSE)
    {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
        {
            ++resources.heapBlocks;
            resources.heapBytes += entry.cbData;
        }
    }
    HeapUnlock(heap);
}

void CountHeaps(ProcessResources& resources)
{
    std::array<HANDLE, 64> heaps{};
    resources.heaps = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    if (resources.heaps > heaps.size())
    {
        throw std::runtime_error("more heaps than expected");
    }
    std::for_each_n(heaps.begin(), resources.heaps, [&](HANDLE heap) { CountBlocks(heap, resources); });
}

std::size_t CountViews()
{
    std::size_t views = 0;
    MEMORY_BASIC_INFORMATION pages{};
    for (auto* at = static_cast<const char*>(nullptr); VirtualQuery(at, &pages, sizeof pages) != 0;
         at = static_cast<const char*>(pages.BaseAddress) + pages.RegionSize)
    {
        const bool isMapped = pages.Type == MEM_MAPPED || pages.Type == MEM_IMAGE;
        views += isMapped && pages.BaseAddress == pages.AllocationBase ? 1 : 0;
    }
    return views;
}

// Takes all that are left, and gives them back.
template <typename Take, typename GiveBack>
std::size_t CountFree(DWORD none, const Take& take, const GiveBack& giveBack)
{
    std::array<DWORD, 8192> taken{};
    std::size_t count = 0;
    while (count < taken.size() && (taken.at(count) = take()) != none)
    {
        ++count;
    }
    std::for_each_n(taken.begin(), count, giveBack);
    return count;
}

std::size_t CountFreeFlsIndices()
{
    return CountFree(
        FLS_OUT_OF_INDEXES, [] { return FlsAlloc(nullptr); }, FlsFree);
}

} // namespace

ProcessResources CountHeapBlocks()
{
    ProcessResources resources;
    CountHeaps(resources);
    return resources;
}

std::size_t CountThreads()
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    if (snapshot == INVALID_HANDLE_VALUE)
    {
        throw std::runtime_error("the threads can't be counted");
    }
    std::size_t threads = 0;
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL isThere = Thread32First(snapshot, &entry); isThere != FALSE;
         isThere = Thread32Next(snapshot, &entry))
    {
        threads += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1 : 0;
    }
    CloseHandle(snapshot);
    return threads;
}

std::size_t CountFreeTlsIndices()
{
    return CountFree(TLS_OUT_OF_INDEXES, TlsAlloc, TlsFree);
}

ProcessResources CountProcessResources()
{
    ProcessResources resources;
    resources.freeTlsIndices = CountFreeTlsIndices();
    resources.freeFlsIndices = CountFreeFlsIndices();
    resources.threads = CountThreads();
    resources.views = CountViews();
    CountHandles(resources);
    CountHeaps(resources);
    return resources;
}

void PrintTo(const ProcessResources& resources, std::ostream* out)
{
    *out << "handles";
    for (std::size_t kind = 0; kind < resources.handles.size(); ++kind)
    {
        if (resources.handles.at(kind) != 0)
        {
            *out << " " << resources.handles.at(kind) << " of kind " << kind << ",";
        }
    }
    *out << " threads " << resources.threads << ", heaps " << resources.heaps << ", blocks "
         << resources.heapBlocks << " of " << resources.heapBytes << " bytes, views " << resources.views
         << ", free TLS indices " << resources.freeTlsIndices << ", free FLS indices "
         << resources.freeFlsIndices;
}

} // namespace norvepa::test
