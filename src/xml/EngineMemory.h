#pragma once

// The memory of one pull engine: it asks for several small blocks a node, and gets them from a pool of its
// own for a fraction of what the process's heap would take. All of it goes with the pool.
//
// The buffers that it reads into, the first two large blocks that it asks for, have room for as much as the
// whole input needs, and so never move: there is an engine that goes on reading where its buffer was. Only of
// an input beyond 64 MB a single name or text may be too long for that.
//
// Callers must: keep the pool for longer than the engine: its references don't keep it alive. One thread.

#include <windows.h>

#include <array>
#include <cstddef>
#include <objidl.h>

namespace norvepa
{

class EngineMemory final : public IMalloc
{
public:
    explicit EngineMemory(std::size_t inputBytes) noexcept;
    EngineMemory(const EngineMemory&) = delete;
    EngineMemory& operator=(const EngineMemory&) = delete;
    virtual ~EngineMemory();

    HRESULT WINAPI QueryInterface(REFIID interfaceId, void** object) override;
    ULONG WINAPI AddRef() override { return 1; }
    ULONG WINAPI Release() override { return 1; }

    void* WINAPI Alloc(SIZE_T bytes) override; // null when memory runs out
    void* WINAPI Realloc(void* block, SIZE_T bytes) override;
    void WINAPI Free(void* block) override;
    SIZE_T WINAPI GetSize(void* block) override;
    int WINAPI DidAlloc(void*) override { return -1; } // which says that it isn't known
    void WINAPI HeapMinimize() override {}

private:
    // Ahead of each block.
    struct alignas(std::max_align_t) Header
    {
        std::size_t room = 0;       // of the block, in bytes
        Header* next = nullptr;     // of what was taken from the heap, or of the free blocks of a size
        Header* previous = nullptr; // of what was taken from the heap
    };

    // Small blocks come in steps of this many bytes.
    static constexpr std::size_t Step = 32;
    static constexpr std::size_t Sizes = 16;
    static constexpr std::size_t LargestSmall = Sizes * Step;

    [[nodiscard]] void* AllocSmall(std::size_t size) noexcept;
    [[nodiscard]] void* AllocLarge(std::size_t bytes) noexcept;
    [[nodiscard]] Header* TakeFromHeap(std::size_t bytes) noexcept;
    void GiveToHeap(Header* taken) noexcept;

    std::size_t m_roomOfBuffers;
    int m_buffersToCome = 2;
    std::array<Header*, Sizes> m_free{};
    Header* m_taken = nullptr;   // the first of what was taken from the heap
    std::byte* m_rest = nullptr; // of the piece that small blocks are cut from
    std::size_t m_restBytes = 0;
};

} // namespace norvepa
