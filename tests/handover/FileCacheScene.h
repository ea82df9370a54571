#pragma once

// The process's one cache of files, and clients who store in it and read from it. It is left as it was found.

#include "handover/norvepaFileCache.h"
#include "support/Pieces.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

inline constexpr std::uint32_t WholeFileLength = 100; // of a piece: more than any file here has

// A client who takes what he has stored back with him.
class CacheClient
{
public:
    explicit CacheClient(std::uint32_t id) : m_id(id) {}
    CacheClient(const CacheClient&) = delete;
    CacheClient& operator=(const CacheClient&) = delete;
    ~CacheClient();

    void Store(std::wstring_view file, std::string_view bytes);
    [[nodiscard]] Piece Read(std::wstring_view file, std::uint32_t index = 0,
                             std::uint32_t pieceLength = WholeFileLength) const;
    [[nodiscard]] std::vector<Piece> ReadAll(std::wstring_view file, std::uint32_t pieceLength) const;
    void Remove(std::wstring_view file) const;

private:
    std::uint32_t m_id;
    std::vector<std::wstring> m_stored; // their names
};

} // namespace norvepa::test
