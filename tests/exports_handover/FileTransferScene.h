#pragma once

// Stored files, handed out in pieces by the library to clients of it.

#include "support/LoadedLibrary.h"
#include "support/Pieces.h"
#include "support/StoreRoots.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

// The kinds of files.
inline constexpr std::uint16_t LogNameKind = 1;
inline constexpr std::uint16_t LogDeviceKind = 2;
inline constexpr std::uint16_t BoardKind = 3;
inline constexpr std::uint16_t TemplateKind = 4;
inline constexpr std::uint16_t ProtocolKind = 5;

// A client of the library's, who asks for files of one kind.
class TransferClient
{
public:
    TransferClient(const Exports& library, std::uint32_t id, std::uint16_t kind = LogDeviceKind)
        : m_library(library), m_id(id), m_kind(kind)
    {
    }

    [[nodiscard]] Piece Ask(const std::wstring& name, std::uint32_t index, std::uint32_t pieceLength) const;
    [[nodiscard]] std::vector<Piece> AskForAll(const std::wstring& name, std::uint32_t pieceLength) const;

    // What is handed out in one piece, without the terminator; "(result N)" when nothing is.
    [[nodiscard]] std::string Text(const std::wstring& name) const;

private:
    const Exports& m_library;
    std::uint32_t m_id;
    std::uint16_t m_kind;
};

class FileTransferScene : public testing::Test
{
protected:
    // A log device's file, whatever it holds.
    void Write(std::string_view bytes, const std::wstring& fileName = L"Presse") const;

    StoreRoots roots;
    const Exports library;
    const TransferClient client{library, 7};
    const TransferClient other{library, 8};
};

} // namespace norvepa::test
