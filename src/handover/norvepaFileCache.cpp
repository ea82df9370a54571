#include "handover/norvepaFileCache.h"

#include "win/Published.h"
#include "win/Undestroyed.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace norvepa
{

namespace
{

using Item = std::shared_ptr<const norvepaFileCacheItem>;
using ItemList = std::vector<Item>; // in the order in which they were stored

using FileCacheMap = std::map<std::uint32_t, ItemList>; // by the client's id

// Ahead of the cache itself, which empties it when it goes.
win::Undestroyed<win::Published<FileCacheMap>> clients;
win::Published<FileCacheMap>& fileCacheMap = clients.get();
win::Undestroyed<norvepaFileCache> fileCache;

wchar_t AsciiLower(wchar_t character) noexcept
{
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character - L'A' + L'a') : character;
}

template <typename List> // constant or not
auto FindItem(List& list, std::wstring_view fileName)
{
    return std::find_if(list.begin(), list.end(),
                        [=](const Item& item) { return SameFileName(item->fileName, fileName); });
}

Item MakeItem(std::wstring_view fileName, std::string_view bytes)
{
    std::string data = StripInterTagWhitespace(bytes);
    const auto size = static_cast<std::uint32_t>(data.size() + 1);
    return std::make_shared<const norvepaFileCacheItem>(
        norvepaFileCacheItem{std::wstring(fileName), size, std::move(data)});
}

} // namespace

bool SameFileName(std::wstring_view left, std::wstring_view right) noexcept
{
    return std::ranges::equal(left, right, {}, AsciiLower, AsciiLower);
}

std::string StripInterTagWhitespace(std::string_view bytes)
{
    constexpr std::string_view whitespace = " \t\n\r";

    std::string cleaned;
    cleaned.reserve(bytes.size());
    bool behindTag = false;
    for (const char byte : bytes)
    {
        if (behindTag && whitespace.find(byte) != std::string_view::npos)
        {
            continue;
        }
        cleaned += byte;
        behindTag = !behindTag && byte == '>'; // of two in a row the second is text
    }
    cleaned.shrink_to_fit(); // it may wait for long
    return cleaned;
}

norvepaFileCache::~norvepaFileCache()
{
    fileCacheMap.Clear();
}

Result norvepaFileCache::FileCacheStore(std::uint32_t clientId, std::wstring_view fileName,
                                        std::string_view bytes)
{
    const Item item = MakeItem(fileName, bytes);
    fileCacheMap.Update([&](FileCacheMap& map) {
        ItemList& list = map[clientId];
        if (const auto older = FindItem(list, fileName); older != list.end())
        {
            list.erase(older);
        }
        list.push_back(item);
        return true;
    });
    return PGSP_OK;
}

Result norvepaFileCache::FileCacheRead(std::uint32_t clientId, std::wstring_view fileName,
                                       std::uint32_t index, void* buffer, std::uint32_t* length) const
{
    const auto map = fileCacheMap.Get();
    const auto client = map->find(clientId);
    if (client == map->end())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    const auto found = FindItem(client->second, fileName);
    if (found == client->second.end())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }

    const norvepaFileCacheItem& item = **found;
    const std::uint32_t chunk = *length;
    const std::uint32_t offset = index * chunk; // 32 bits, which may wrap around
    if (offset > item.size)
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    const bool isLast = item.size <= std::uint64_t{offset} + chunk;
    *length = isLast ? item.size - offset : chunk;
    std::memcpy(buffer, item.data.c_str() + offset, *length);
    return isLast ? PGSP_OK : PGSP_ERR_BUFFER_TOO_SHORT;
}

Result norvepaFileCache::FileCacheRemove(std::uint32_t clientId, std::wstring_view fileName) noexcept
try
{
    fileCacheMap.Update([&](FileCacheMap& map) {
        const auto client = map.find(clientId);
        if (client == map.end())
        {
            return false;
        }
        ItemList& list = client->second;
        const auto item = FindItem(list, fileName);
        if (item == list.end())
        {
            return false;
        }
        list.erase(item);
        if (list.empty())
        {
            map.erase(client); // callers may pick a fresh id for each transfer
        }
        return true;
    });
    return PGSP_OK;
}
catch (const std::bad_alloc&)
{
    return PGSP_OK; // the item stays, as one does whose reader stopped half way
}

norvepaFileCache& FileCache() noexcept
{
    return fileCache.get();
}

void FreeFileCache() noexcept
{
    fileCache.Destroy();
    clients.Destroy();
}

} // namespace norvepa
