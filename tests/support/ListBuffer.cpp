#include "support/ListBuffer.h"

#include <algorithm>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr wchar_t Mark = L'\u2592';
constexpr std::size_t ClearedCharacters = 260;
constexpr std::size_t CellsBehind = 16;

} // namespace

ListBuffer::ListBuffer(std::uint32_t capacity)
    : length(capacity), m_cells(std::max<std::size_t>(capacity, ClearedCharacters) + CellsBehind, Mark)
{
}

bool ListBuffer::isUntouched(std::size_t count) const
{
    return m_cells.substr(0, count).find_first_not_of(Mark) == std::wstring::npos;
}

std::wstring ListBuffer::written() const
{
    return m_cells.substr(0, m_cells.find_last_not_of(Mark) + 1);
}

std::vector<std::wstring> ListBuffer::strings() const
{
    std::vector<std::wstring> strings;
    const std::wstring cells = written();
    for (std::size_t begin = 0; begin + 1 < cells.size();)
    {
        const std::size_t end = cells.find(L'\0', begin);
        if (end == std::wstring::npos)
        {
            break;
        }
        strings.push_back(cells.substr(begin, end - begin));
        begin = end + 1;
    }
    if (Packed(strings) != cells)
    {
        throw std::runtime_error("the list isn't whole");
    }
    return strings;
}

std::wstring Packed(const Strings& strings)
{
    return PackedWithoutEnd(strings) + L'\0';
}

std::wstring PackedWithoutEnd(const Strings& strings)
{
    std::wstring packed;
    for (const std::wstring& string : strings)
    {
        packed += string;
        packed += L'\0';
    }
    return packed;
}

} // namespace norvepa::test
