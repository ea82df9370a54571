#include "endurance/OwnBlocks.h"

#include <atomic>
#include <cstdlib>

namespace norvepa::test
{

namespace
{

std::atomic<std::int64_t> blocks = 0;

void* Counted(void* block)
{
    blocks += block == nullptr ? 0 : 1;
    return block;
}

void* Malloc(std::size_t size)
{
    return Counted(std::malloc(size));
}

void* Calloc(std::size_t count, std::size_t size)
{
    return Counted(std::calloc(count, size));
}

void* Realloc(void* block, std::size_t size)
{
    return block == nullptr ? Malloc(size) : std::realloc(block, size);
}

void Free(void* block)
{
    blocks -= block == nullptr ? 0 : 1;
    std::free(block);
}

} // namespace

OwnBlocks::OwnBlocks(HMODULE module)
    : m_malloc("malloc", Malloc, module),
      m_calloc("calloc", Calloc, module),
      m_realloc("realloc", Realloc, module),
      m_free("free", Free, module)
{
    blocks = 0;
}

std::int64_t OwnBlocks::count() const
{
    return blocks;
}

} // namespace norvepa::test
