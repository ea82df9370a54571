#pragma once

// A caller's output buffer with its length, full of a mark, so that a test sees what was written.

#include <cstdint>
#include <string>

namespace norvepa::test
{

class OutputBuffer
{
public:
    explicit OutputBuffer(std::uint32_t capacity);

    [[nodiscard]] wchar_t* data() { return m_cells.data(); }
    std::uint32_t length; // goes in as the capacity

    [[nodiscard]] bool isUntouched() const;

    // What stands ahead of the terminator. Throws when there is none within the capacity, or when
    // something was written behind the capacity.
    [[nodiscard]] std::wstring text() const;

private:
    std::uint32_t m_capacity;
    std::wstring m_cells;
};

} // namespace norvepa::test
