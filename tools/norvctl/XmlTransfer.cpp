#include "XmlTransfer.h"

#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

using Piece = std::array<uint8_t, 16384>;

constexpr uint8_t Unset = 0xFF; // no document begins with a row of these, in whatever encoding

// For a name that makes too long a path the library says the same as when more is to come, and leaves the
// first piece alone.
bool IsLeftAlone(const Piece& piece)
{
    return std::all_of(piece.begin(), piece.end(), [](uint8_t byte) { return byte == Unset; });
}

[[noreturn]] void Refuse(const XmlKind& kind, const std::string& object, int32_t result)
{
    if (result == PGSP_ERR_NO_MORE_ITEMS)
    {
        throw Failure(object, result, fmt::format("there is no such {}, or it cannot be read", kind.what));
    }
    throw Failure(object, result);
}

// One piece; false when it is the last one. The zero byte that the library adds to the file isn't given on.
bool TransferPiece(const XmlKind& kind, const std::string& object, uint32_t index,
                   const std::function<void(std::string_view)>& take)
{
    Piece piece;
    piece.fill(Unset);
    auto length = static_cast<uint32_t>(piece.size());
    const int32_t result = LogDeviceGetXmlBL(GetCurrentProcessId(), kind.number, ToWide(object).c_str(),
                                             index, piece.data(), &length);
    const bool isRefused = index == 0 && IsLeftAlone(piece);
    const bool isMoreToCome = result == PGSP_ERR_BUFFER_TOO_SHORT && !isRefused;
    if (result != PGSP_OK && !isMoreToCome)
    {
        Refuse(kind, object, result);
    }
    take({reinterpret_cast<const char*>(piece.data()), isMoreToCome ? length : length - 1});
    return isMoreToCome;
}

} // namespace

void TransferXml(const XmlKind& kind, const std::string& object,
                 const std::function<void(std::string_view)>& take)
{
    uint32_t index = 0;
    while (TransferPiece(kind, object, index, take))
    {
        ++index;
    }
}

std::string ReadXml(const XmlKind& kind, const std::string& object)
{
    std::string file;
    TransferXml(kind, object, [&](std::string_view bytes) { file += bytes; });
    return file;
}

} // namespace norvctl
