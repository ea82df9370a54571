#include "handover/StreamHeap.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace norvepa::test
{

namespace
{

constexpr std::size_t BlockBytes = 1000;
constexpr int Debris = 0xDD;

struct
{
    void* block;
    std::vector<std::string> grownFrom;
    bool refusesToBegin;
    std::size_t growthsLeft;
} seen;

// The run-time library's own. By their names they lead back to the functions below.
template <typename Function>
Function* Real(Function* /*its type*/, const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"msvcrt.dll"), name)));
}

void* Begin(std::size_t count, std::size_t size)
{
    static const auto real = Real(&std::calloc, "calloc");
    if (count * size != BlockBytes)
    {
        return real(count, size);
    }
    seen.block = seen.refusesToBegin ? nullptr : real(count, size);
    return seen.block;
}

void* Grow(void* block, std::size_t size)
{
    static const auto real = Real(&std::realloc, "realloc");
    static const auto release = Real(&std::free, "free");
    if (block == nullptr || block != seen.block)
    {
        return real(block, size);
    }
    if (seen.growthsLeft == 0)
    {
        return nullptr;
    }
    --seen.growthsLeft;
    const std::size_t before = size - BlockBytes;
    seen.grownFrom.emplace_back(static_cast<const char*>(block), before);
    seen.block = std::calloc(size, 1);
    std::memcpy(seen.block, block, before);
    std::memset(block, Debris, before);
    release(block);
    return seen.block;
}

void End(void* block)
{
    static const auto real = Real(&std::free, "free");
    if (block != nullptr && block == seen.block)
    {
        seen.block = nullptr;
    }
    real(block);
}

} // namespace

StreamHeap::StreamHeap() : m_begin("calloc", Begin), m_grow("realloc", Grow), m_end("free", End)
{
    seen = {nullptr, {}, false, std::numeric_limits<std::size_t>::max()};
}

StreamHeap::~StreamHeap()
{
    seen = {};
}

void StreamHeap::RefuseToBegin()
{
    seen.refusesToBegin = true;
}

void StreamHeap::RefuseToGrow(std::size_t nth)
{
    seen.growthsLeft = nth - 1;
}

const std::vector<std::string>& StreamHeap::grownFrom() const
{
    return seen.grownFrom;
}

bool StreamHeap::isHeld() const
{
    return seen.block != nullptr;
}

} // namespace norvepa::test
