#pragma once

// Files that are handed out in pieces, as their reader gets them.
//
// A call that asks for a piece takes the buffer and the length, in and out; one that asks for a whole file
// takes the index ahead of them.

#include "norvepa.h"

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

// What is answered to one request.
struct Piece
{
    std::int32_t result;
    std::string bytes = {};

    bool operator==(const Piece&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Piece& piece);

// What a request may be answered: a piece with more to come, the last one, and nothing.
[[nodiscard]] Piece More(std::string_view bytes);
[[nodiscard]] Piece Last(std::string_view bytes);
inline const Piece NoPiece{PGSP_ERR_NO_MORE_ITEMS};

// A text with the zero byte that follows it.
[[nodiscard]] std::string Terminated(std::string_view text);

// A buffer of a reader's, full of a mark. It has room for what tests read, however long a piece is said to
// be.
class PieceBuffer
{
public:
    explicit PieceBuffer(std::uint32_t pieceLength);

    [[nodiscard]] std::uint8_t* data() { return m_bytes.data(); }
    std::uint32_t length; // goes in as that of a piece

    [[nodiscard]] bool isUntouched() const; // and the length too

    // The first `length` bytes. Throws when something was written behind them.
    [[nodiscard]] std::string bytes() const;

private:
    std::uint32_t m_pieceLength;
    std::vector<std::uint8_t> m_bytes;
};

// What a buffer holds behind a call with this result: nothing, unless that is one that comes with a piece.
// Throws when something was written that doesn't belong to a piece.
[[nodiscard]] Piece PieceIn(const PieceBuffer& buffer, std::int32_t result);

template <typename Call>
[[nodiscard]] Piece PieceOf(std::uint32_t pieceLength, const Call& call)
{
    PieceBuffer buffer(pieceLength);
    const std::int32_t result = call(buffer.data(), &buffer.length);
    return PieceIn(buffer, result);
}

// All pieces from index 0 to the first that doesn't say that more is to come.
template <typename Call>
[[nodiscard]] std::vector<Piece> PiecesOf(std::uint32_t pieceLength, const Call& call)
{
    std::vector<Piece> pieces;
    std::uint32_t index = 0;
    do
    {
        pieces.push_back(PieceOf(pieceLength, [&](std::uint8_t* buffer, std::uint32_t* length) {
            return call(index, buffer, length);
        }));
        ++index;
    } while (pieces.back().result == PGSP_ERR_BUFFER_TOO_SHORT);
    return pieces;
}

// How a text is to be cut: all pieces but the last are as long as this says, and that isn't empty.
[[nodiscard]] std::vector<Piece> CutIntoPieces(std::string_view text, std::uint32_t pieceLength);

} // namespace norvepa::test
