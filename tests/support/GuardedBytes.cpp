#include "support/GuardedBytes.h"

#include <windows.h>

#include <algorithm>
#include <new>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr std::size_t PageSize = 4096;

} // namespace

GuardedBytes::GuardedBytes(std::size_t room)
    : m_begin(nullptr), m_room((room + PageSize - 1) / PageSize * PageSize)
{
    // Of what is only reserved nothing can be accessed.
    void* const reserved = VirtualAlloc(nullptr, m_room + PageSize, MEM_RESERVE, PAGE_NOACCESS);
    if (reserved == nullptr || VirtualAlloc(reserved, m_room, MEM_COMMIT, PAGE_READWRITE) == nullptr)
    {
        throw std::bad_alloc();
    }
    m_begin = static_cast<char*>(reserved);
}

GuardedBytes::~GuardedBytes()
{
    VirtualFree(m_begin, 0, MEM_RELEASE);
}

std::string_view GuardedBytes::Copy(std::string_view text)
{
    if (text.size() > m_room)
    {
        throw std::length_error("more bytes than there is room for");
    }
    char* const begin = m_begin + (m_room - text.size());
    std::copy(text.begin(), text.end(), begin);
    return {begin, text.size()};
}

} // namespace norvepa::test
