#include "FileCacheScene.h"

namespace norvepa::test
{

CacheClient::~CacheClient()
{
    for (const std::wstring& file : m_stored)
    {
        FileCache().FileCacheRemove(m_id, file);
    }
}

void CacheClient::Store(std::wstring_view file, std::string_view bytes)
{
    EXPECT_EQ(FileCache().FileCacheStore(m_id, file, bytes), PGSP_OK);
    m_stored.emplace_back(file);
}

Piece CacheClient::Read(std::wstring_view file, std::uint32_t index, std::uint32_t pieceLength) const
{
    return PieceOf(pieceLength, [&](std::uint8_t* buffer, std::uint32_t* length) {
        return FileCache().FileCacheRead(m_id, file, index, buffer, length);
    });
}

std::vector<Piece> CacheClient::ReadAll(std::wstring_view file, std::uint32_t pieceLength) const
{
    return PiecesOf(pieceLength, [&](std::uint32_t index, std::uint8_t* buffer, std::uint32_t* length) {
        return FileCache().FileCacheRead(m_id, file, index, buffer, length);
    });
}

void CacheClient::Remove(std::wstring_view file) const
{
    EXPECT_EQ(FileCache().FileCacheRemove(m_id, file), PGSP_OK);
}

} // namespace norvepa::test
