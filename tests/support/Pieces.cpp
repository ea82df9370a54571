#include "support/Pieces.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr std::uint8_t Mark = 0xA5;
constexpr std::uint32_t Room = 1'000'000; // bytes, more than any test reads at once
constexpr std::uint32_t BytesBehind = 16;

} // namespace

std::ostream& operator<<(std::ostream& stream, const Piece& piece)
{
    return stream << piece.result << ' ' << testing::PrintToString(piece.bytes);
}

Piece More(std::string_view bytes)
{
    return {PGSP_ERR_BUFFER_TOO_SHORT, std::string(bytes)};
}

Piece Last(std::string_view bytes)
{
    return {PGSP_OK, std::string(bytes)};
}

std::string Terminated(std::string_view text)
{
    return std::string(text) + '\0';
}

PieceBuffer::PieceBuffer(std::uint32_t pieceLength)
    : length(pieceLength),
      m_pieceLength(pieceLength),
      m_bytes(std::min(pieceLength, Room) + BytesBehind, Mark)
{
}

bool PieceBuffer::isUntouched() const
{
    return length == m_pieceLength &&
           std::ranges::all_of(m_bytes, [](std::uint8_t byte) { return byte == Mark; });
}

std::string PieceBuffer::bytes() const
{
    if (length > m_pieceLength || length > m_bytes.size())
    {
        throw std::runtime_error("more told than a piece holds");
    }
    const auto end = m_bytes.begin() + static_cast<std::ptrdiff_t>(length);
    if (std::any_of(end, m_bytes.end(), [](std::uint8_t byte) { return byte != Mark; }))
    {
        throw std::runtime_error("written behind the piece");
    }
    return {m_bytes.begin(), end};
}

Piece PieceIn(const PieceBuffer& buffer, std::int32_t result)
{
    if (result == PGSP_OK || result == PGSP_ERR_BUFFER_TOO_SHORT)
    {
        return {result, buffer.bytes()};
    }
    if (!buffer.isUntouched())
    {
        throw std::runtime_error("written without a piece");
    }
    return {result};
}

std::vector<Piece> CutIntoPieces(std::string_view text, std::uint32_t pieceLength)
{
    std::vector<Piece> pieces;
    for (; text.size() > pieceLength; text.remove_prefix(pieceLength))
    {
        pieces.push_back(More(text.substr(0, pieceLength)));
    }
    pieces.push_back(Last(text));
    return pieces;
}

} // namespace norvepa::test
