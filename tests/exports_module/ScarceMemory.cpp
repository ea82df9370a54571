#include "ScarceMemory.h"

#include <atomic>
#include <cstdlib>

namespace norvepa::test
{

namespace
{

std::atomic<long long> left = 0; // requests ahead of the one that fails
std::atomic<bool> lasts = false;
std::atomic<bool> failed = false;

bool IsToFail()
{
    const long long before = left.fetch_sub(1);
    if (before > 0 || (before < 0 && !lasts))
    {
        return false;
    }
    failed = true;
    return true;
}

void* Allocate(std::size_t size)
{
    return IsToFail() ? nullptr : std::malloc(size);
}

void* AllocateCleared(std::size_t count, std::size_t size)
{
    return IsToFail() ? nullptr : std::calloc(count, size);
}

void* Resize(void* block, std::size_t size)
{
    return IsToFail() ? nullptr : std::realloc(block, size);
}

} // namespace

ScarceMemory::ScarceMemory(HMODULE library, std::size_t nth, Scarcity scarcity)
    : m_malloc("malloc", Allocate, library),
      m_calloc("calloc", AllocateCleared, library),
      m_realloc("realloc", Resize, library)
{
    failed = false;
    lasts = scarcity == Scarcity::Lasting;
    left = static_cast<long long>(nth) - 1;
}

bool ScarceMemory::hasFailed() const
{
    return failed;
}

} // namespace norvepa::test
