#include "xml/EngineMemory.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>

namespace norvepa
{

namespace
{

constexpr std::size_t PieceBytes = 32 * 1024;
constexpr std::size_t LeastBuffer = 4096; // what an engine reads into isn't smaller
constexpr std::size_t MostRoomOfABuffer = 256 << 20;

std::size_t RoundedUp(std::size_t bytes, std::size_t step) noexcept
{
    return (bytes + step - 1) / step * step;
}

} // namespace

// In UTF-16 an input is twice as long at most, and a buffer that is doubled may get twice as long as it need
// be.
EngineMemory::EngineMemory(std::size_t inputBytes) noexcept
    : m_roomOfBuffers(std::min(4 * inputBytes + 64 * 1024, MostRoomOfABuffer))
{
}

EngineMemory::~EngineMemory()
{
    while (m_taken != nullptr)
    {
        GiveToHeap(m_taken);
    }
}

HRESULT EngineMemory::QueryInterface(REFIID interfaceId, void** object)
{
    const bool isOurs = interfaceId == __uuidof(IUnknown) || interfaceId == __uuidof(IMalloc);
    *object = isOurs ? static_cast<IMalloc*>(this) : nullptr;
    return isOurs ? S_OK : E_NOINTERFACE;
}

void* EngineMemory::Alloc(SIZE_T bytes)
{
    return bytes <= LargestSmall ? AllocSmall(bytes == 0 ? 0 : (bytes - 1) / Step) : AllocLarge(bytes);
}

void* EngineMemory::AllocSmall(std::size_t size) noexcept
{
    if (Header* const free = m_free[size])
    {
        m_free[size] = free->next;
        return free + 1;
    }
    const std::size_t room = (size + 1) * Step;
    const std::size_t bytes = sizeof(Header) + room;
    if (m_restBytes < bytes)
    {
        Header* const piece = TakeFromHeap(PieceBytes);
        if (piece == nullptr)
        {
            return nullptr;
        }
        m_rest = reinterpret_cast<std::byte*>(piece + 1);
        m_restBytes = PieceBytes;
    }
    auto* const header = std::construct_at(reinterpret_cast<Header*>(m_rest), Header{room, nullptr, nullptr});
    m_rest += bytes;
    m_restBytes -= bytes;
    return header + 1;
}

void* EngineMemory::AllocLarge(std::size_t bytes) noexcept
{
    const bool isBuffer = bytes >= LeastBuffer && m_buffersToCome > 0;
    m_buffersToCome -= isBuffer ? 1 : 0;
    Header* const piece = TakeFromHeap(isBuffer ? std::max(bytes, m_roomOfBuffers) : bytes);
    return piece == nullptr ? nullptr : piece + 1;
}

EngineMemory::Header* EngineMemory::TakeFromHeap(std::size_t bytes) noexcept
{
    if (bytes > std::numeric_limits<std::size_t>::max() / 2) // which no sum goes beyond
    {
        return nullptr;
    }
    const std::size_t room = RoundedUp(bytes, alignof(Header));
    void* const memory = HeapAlloc(GetProcessHeap(), 0, sizeof(Header) + room);
    if (memory == nullptr)
    {
        return nullptr;
    }
    auto* const taken = std::construct_at(static_cast<Header*>(memory), Header{room, m_taken, nullptr});
    if (m_taken != nullptr)
    {
        m_taken->previous = taken;
    }
    m_taken = taken;
    return taken;
}

void EngineMemory::GiveToHeap(Header* taken) noexcept
{
    (taken->previous == nullptr ? m_taken : taken->previous->next) = taken->next;
    if (taken->next != nullptr)
    {
        taken->next->previous = taken->previous;
    }
    HeapFree(GetProcessHeap(), 0, taken);
}

void* EngineMemory::Realloc(void* block, SIZE_T bytes)
{
    if (block == nullptr)
    {
        return Alloc(bytes);
    }
    if (bytes <= GetSize(block))
    {
        return block;
    }
    void* const moved = Alloc(bytes);
    if (moved != nullptr)
    {
        std::memcpy(moved, block, GetSize(block));
        Free(block);
    }
    return moved;
}

void EngineMemory::Free(void* block)
{
    if (block == nullptr)
    {
        return;
    }
    Header* const header = static_cast<Header*>(block) - 1;
    if (header->room > LargestSmall)
    {
        GiveToHeap(header);
        return;
    }
    Header*& free = m_free[header->room / Step - 1];
    header->next = free;
    free = header;
}

SIZE_T EngineMemory::GetSize(void* block)
{
    return block == nullptr ? 0 : (static_cast<Header*>(block) - 1)->room;
}

} // namespace norvepa
