#pragma once

// Files on their way to callers who can't read them themselves: each waits here between the pieces in which
// its reader takes it.
//
// Callers may rely on: clients are kept apart by their ids, and any number of them may transfer at once. What
// a reader gets is the file as it was stored, whatever becomes of it on disk. Callers must not: change the
// length of a piece within a transfer, since nothing remembers it; or let one client run two transfers of one
// file. What a reader leaves half read stays for as long as the module does, or until the client begins anew.

#include "frame/Result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa
{

// One file of one client.
struct norvepaFileCacheItem
{
    std::wstring fileName; // the whole path, as the caller composed it
    std::uint32_t size;    // of the data in bytes, with the terminator
    std::string data;      // cleaned; the terminator is the string's own
};

class norvepaFileCache
{
public:
    norvepaFileCache() = default;
    norvepaFileCache(const norvepaFileCache&) = delete;
    norvepaFileCache& operator=(const norvepaFileCache&) = delete;
    virtual ~norvepaFileCache();

    // Keeps a cleaned copy, in place of what the client has of this file. Always PGSP_OK.
    Result FileCacheStore(std::uint32_t clientId, std::wstring_view fileName, std::string_view bytes);

    // The piece of this index, where all are as long as `*length` says, in bytes: PGSP_ERR_BUFFER_TOO_SHORT
    // when more is to come, PGSP_OK with the last, whose length is told in `*length`, and
    // PGSP_ERR_NO_MORE_ITEMS behind it or when the client has no such file.
    [[nodiscard]] Result FileCacheRead(std::uint32_t clientId, std::wstring_view fileName,
                                       std::uint32_t index, void* buffer, std::uint32_t* length) const;

    // Forgets the client's copy, if there is one. Always PGSP_OK.
    Result FileCacheRemove(std::uint32_t clientId, std::wstring_view fileName) noexcept;
};

// The only one.
[[nodiscard]] norvepaFileCache& FileCache() noexcept;

// When the module goes.
void FreeFileCache() noexcept;

// The comparison of the cache's names: the ASCII letters fold, and no others.
[[nodiscard]] bool SameFileName(std::wstring_view left, std::wstring_view right) noexcept;

// The bytes without the blanks, tabs and line ends that follow a ">" directly: those that begin an element's
// text, too.
[[nodiscard]] std::string StripInterTagWhitespace(std::string_view bytes);

} // namespace norvepa
