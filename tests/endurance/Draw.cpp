#include "endurance/Draw.h"

#include <algorithm>
#include <array>

namespace norvepa::test
{

namespace
{

constexpr wchar_t Mark = L'\u2592';
constexpr std::uint32_t ClearedCharacters = 260;
constexpr std::size_t CellsBehind = 16;

// Of a hundred: texts that nobody means, and texts that one may come upon. The others are usual.
constexpr std::uint32_t HostileShare = 6;
constexpr std::uint32_t OddShare = 18;
constexpr std::uint32_t NullShare = 3; // of buffers, and of lengths

constexpr std::array<std::uint32_t, 12> Offers{0, 1, 2, 5, 27, 28, 259, 260, 260, 1000, 4000, 4000};
constexpr std::array<std::uint32_t, 12> Indices{0, 0, 0, 1, 1, 2, 3, 5, 8, 13, 40, 0xFFFFFFFF};
constexpr std::array<std::int32_t, 8> Flags{0, 0, 1, 2, 4, 6, -1, 3};

std::uint64_t Scattered(std::uint64_t number)
{
    number = (number ^ (number >> 30)) * 0xBF58476D1CE4E5B9;
    number = (number ^ (number >> 27)) * 0x94D049BB133111EB;
    return number ^ (number >> 31);
}

} // namespace

Room::Room(std::uint32_t offered, bool hasBuffer, bool hasLength)
    : m_cells(std::max(offered, ClearedCharacters) + 1 + CellsBehind, Mark),
      m_length(offered),
      m_hasBuffer(hasBuffer),
      m_hasLength(hasLength)
{
}

std::uint8_t* Room::bytes()
{
    return reinterpret_cast<std::uint8_t*>(data());
}

bool Room::isIntact() const
{
    return std::all_of(m_cells.end() - CellsBehind, m_cells.end(), [](wchar_t cell) { return cell == Mark; });
}

const wchar_t* Draw::Of(const Words& words)
{
    const std::uint32_t share = Below(100);
    if (share < HostileShare)
    {
        return OneOf(Hostile);
    }
    return OneOf(share < HostileShare + OddShare ? words.odd : words.usual);
}

std::uint32_t Draw::Index()
{
    return Indices.at(Below(Indices.size()));
}

std::int32_t Draw::Flag()
{
    return Flags.at(Below(Flags.size()));
}

std::uint32_t Draw::Below(std::uint32_t limit)
{
    return static_cast<std::uint32_t>(Next() % limit);
}

Room& Draw::Output()
{
    const std::uint32_t offered = Offers.at(Below(Offers.size()));
    const bool hasBuffer = Below(100) >= NullShare;
    const bool hasLength = Below(100) >= NullShare;
    return m_rooms.emplace_back(offered, hasBuffer, hasLength);
}

bool Draw::isIntact() const
{
    return std::ranges::all_of(m_rooms, &Room::isIntact);
}

std::uint64_t Draw::Next()
{
    m_state += 0x9E3779B97F4A7C15;
    return Scattered(m_state);
}

const wchar_t* Draw::OneOf(Texts texts)
{
    return texts[Below(static_cast<std::uint32_t>(texts.size()))];
}

std::uint64_t Mixed(std::uint64_t one, std::uint64_t other)
{
    return Scattered(Scattered(one + 0x9E3779B97F4A7C15) ^ other);
}

} // namespace norvepa::test
