#include "FailingNew.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace norvepa::test
{

namespace
{

constexpr long long Never = std::numeric_limits<long long>::max() / 2;

std::atomic<long long> left = Never; // allocations ahead of the one that fails
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

} // namespace

FailingNew::FailingNew(std::size_t nth, Shortage shortage)
{
    failed = false;
    lasts = shortage == Shortage::Lasting;
    left = static_cast<long long>(nth) - 1;
}

FailingNew::~FailingNew()
{
    left = Never;
}

bool FailingNew::hasFailed() const
{
    return failed;
}

void* Allocate(std::size_t size);

void* Allocate(std::size_t size)
{
    void* const memory = IsToFail() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace norvepa::test

// The program's own; the forms for arrays and without exceptions come here by themselves.
void* operator new(std::size_t size)
{
    return norvepa::test::Allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
