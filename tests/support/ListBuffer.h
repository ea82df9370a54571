#pragma once

// A caller's buffer for a list of strings with its length, full of a mark, so that a test sees what was
// written. However little is offered, the room that some lists clear is there.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace norvepa::test
{

class ListBuffer
{
public:
    explicit ListBuffer(std::uint32_t capacity);

    [[nodiscard]] wchar_t* data() { return m_cells.data(); }
    std::uint32_t length; // goes in as the capacity

    [[nodiscard]] bool isUntouched() const { return isUntouched(m_cells.size()); }
    [[nodiscard]] bool isUntouched(std::size_t count) const; // of the first so many characters

    // All characters up to the last that isn't the mark, terminators included.
    [[nodiscard]] std::wstring written() const;

    // The strings of a list that is whole. Throws when it isn't.
    [[nodiscard]] std::vector<std::wstring> strings() const;

private:
    std::wstring m_cells;
};

using Strings = std::vector<std::wstring>;

// The characters of a list: each string with its terminator, and one more behind the last.
[[nodiscard]] std::wstring Packed(const Strings& strings);
[[nodiscard]] std::wstring PackedWithoutEnd(const Strings& strings);

} // namespace norvepa::test
