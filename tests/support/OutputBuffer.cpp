#include "support/OutputBuffer.h"

#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr wchar_t Mark = L'\u2592';
constexpr std::uint32_t CellsBehind = 16;

} // namespace

OutputBuffer::OutputBuffer(std::uint32_t capacity)
    : length(capacity), m_capacity(capacity), m_cells(capacity + CellsBehind, Mark)
{
}

bool OutputBuffer::isUntouched() const
{
    return m_cells.find_first_not_of(Mark) == std::wstring::npos;
}

std::wstring OutputBuffer::text() const
{
    if (m_cells.find_first_not_of(Mark, m_capacity) != std::wstring::npos)
    {
        throw std::runtime_error("written behind the buffer");
    }
    const std::size_t end = m_cells.find(L'\0');
    if (end == std::wstring::npos)
    {
        throw std::runtime_error("no terminator in the buffer");
    }
    return m_cells.substr(0, end);
}

} // namespace norvepa::test
