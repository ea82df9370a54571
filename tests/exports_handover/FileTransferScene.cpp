#include "FileTransferScene.h"

namespace norvepa::test
{

Piece TransferClient::Ask(const std::wstring& name, std::uint32_t index, std::uint32_t pieceLength) const
{
    return PieceOf(pieceLength, [&](std::uint8_t* buffer, std::uint32_t* length) {
        return m_library.LogDeviceGetXmlBL(m_id, m_kind, name.c_str(), index, buffer, length);
    });
}

std::vector<Piece> TransferClient::AskForAll(const std::wstring& name, std::uint32_t pieceLength) const
{
    return PiecesOf(pieceLength, [&](std::uint32_t index, std::uint8_t* buffer, std::uint32_t* length) {
        return m_library.LogDeviceGetXmlBL(m_id, m_kind, name.c_str(), index, buffer, length);
    });
}

std::string TransferClient::Text(const std::wstring& name) const
{
    constexpr std::uint32_t whole = 100'000; // bytes
    const Piece piece = Ask(name, 0, whole);
    if (piece.result != PGSP_OK)
    {
        return "(result " + std::to_string(piece.result) + ")";
    }
    const std::string text = piece.bytes.substr(0, piece.bytes.size() - 1);
    EXPECT_EQ(piece.bytes, Terminated(text));
    return text;
}

void FileTransferScene::Write(std::string_view bytes, const std::wstring& fileName) const
{
    WriteBytes(roots.logDevice(fileName), bytes);
}

} // namespace norvepa::test
