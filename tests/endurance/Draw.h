#pragma once

// The arguments of one call, drawn by a number: the same number draws the same arguments.

#include "endurance/Words.h"

#include <cstdint>
#include <deque>
#include <vector>

namespace norvepa::test
{

// What a caller has ready for an answer, and how much of it he says there is. However little he offers, the
// 260 characters that some exports read and clear are there, and one more, which one export writes.
class Room
{
public:
    Room(std::uint32_t offered, bool hasBuffer, bool hasLength);

    [[nodiscard]] wchar_t* data() { return m_hasBuffer ? m_cells.data() : nullptr; } // may be null
    [[nodiscard]] std::uint8_t* bytes(); // the same for an export that counts bytes
    [[nodiscard]] std::uint32_t* length() { return m_hasLength ? &m_length : nullptr; } // may be null

    [[nodiscard]] bool isIntact() const; // behind the room

private:
    std::vector<wchar_t> m_cells;
    std::uint32_t m_length;
    bool m_hasBuffer;
    bool m_hasLength;
};

class Draw
{
public:
    explicit Draw(std::uint64_t number) : m_state(number) {}

    [[nodiscard]] const wchar_t* Of(const Words& words); // may be null
    [[nodiscard]] std::uint32_t Index();
    [[nodiscard]] std::int32_t Flag();
    [[nodiscard]] std::uint32_t Below(std::uint32_t limit);
    [[nodiscard]] Room& Output();

    [[nodiscard]] bool isIntact() const; // all that was handed out for answers

private:
    [[nodiscard]] std::uint64_t Next();
    [[nodiscard]] const wchar_t* OneOf(Texts texts);

    std::uint64_t m_state;
    std::deque<Room> m_rooms; // stay where they are
};

// A number of its own for each pair.
[[nodiscard]] std::uint64_t Mixed(std::uint64_t one, std::uint64_t other);

} // namespace norvepa::test
