#include "notify/directoryCache.h"

#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "frame/Text.h"
#include "notify/ListingCache.h"
#include "trace/TraceStatement.h"
#include "win/FileSystem.h"
#include "win/Undestroyed.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>

namespace norvepa
{

constinit win::RecursiveMutex directoryMutex;

namespace
{

constexpr std::size_t ExtensionLength = 4; // of ".xml"

// Under directoryMutex. An empty or missing listing isn't known, and is scanned for. `directoryClearings`
// counts what has been dropped: a scan that began before the last clearing may have seen the folder as it
// was, and is not stored.
using Listing = std::shared_ptr<const DirectoryListing>;
win::Undestroyed<std::map<std::wstring, Listing>> listings;
win::Undestroyed<const Listing> noListing(std::make_shared<const DirectoryListing>());
std::map<std::wstring, Listing>& directoryContent = listings.get();
const Listing& emptyListing = noListing.get();
std::uint64_t directoryClearings = 0;

// The known folder of this path, compared as paths are. Under directoryMutex.
auto FindKnownFolder(const std::wstring& folder)
{
    auto known = directoryContent.begin();
    while (known != directoryContent.end() && !EqualNoCase(known->first, folder, PathCapacity))
    {
        ++known;
    }
    return known;
}

} // namespace

void DropListing(const std::wstring& folder)
{
    ++directoryClearings;
    if (const auto known = FindKnownFolder(folder); known != directoryContent.end())
    {
        known->second = emptyListing;
    }
}

void DropAllListings()
{
    ++directoryClearings;
    directoryContent.clear();
}

void FreeListings() noexcept
{
    listings.Destroy();
    noListing.Destroy();
}

namespace
{

constexpr TraceSource contentSource{"getDirectoryContent: ", " BL"};

std::wstring ListedName(const wchar_t* fileName)
{
    std::array<wchar_t, PathCapacity> buffer;
    std::uint32_t length = PathCapacity;
    std::wstring name(fileName);
    if (NorvXMLUnescapeName(fileName, buffer.data(), &length) == PGSP_OK)
    {
        name.assign(buffer.data(), length);
    }
    name.resize(name.size() - std::min(name.size(), ExtensionLength));
    return name;
}

// Null when there is nothing to list.
std::shared_ptr<const DirectoryListing> Scan(const std::wstring& folderPath)
{
    NORV_TRACE(contentSource, TraceEntry, ">> directory = %s", TraceToAnsi(folderPath.c_str()));
    win::FileSearch search(folderPath + L"\\*.xml");
    if (!search)
    {
        NORV_TRACE(contentSource, TraceWarning, "ERROR: directory cannot be read");
        return nullptr;
    }

    auto listing = std::make_shared<DirectoryListing>();
    do
    {
        listing->push_back(ListedName(search.name()));
        NORV_TRACE(contentSource, TraceEntry, "adding file %s", TraceToAnsi(listing->back().c_str()));
    } while (search.Next());
    return listing;
}

struct Known
{
    std::shared_ptr<const DirectoryListing> listing;
    std::uint64_t clearings;
};

Known LookUp(const std::wstring& folderPath)
{
    const std::lock_guard lock(directoryMutex);
    const auto known = FindKnownFolder(folderPath);
    return {known == directoryContent.end() ? emptyListing : known->second, directoryClearings};
}

void Keep(const std::wstring& folderPath, const std::shared_ptr<const DirectoryListing>& listing,
          std::uint64_t clearingsAtScan)
{
    const std::lock_guard lock(directoryMutex);
    if (directoryClearings == clearingsAtScan)
    {
        directoryContent[folderPath] = listing;
    }
}

} // namespace

Result getDirectoryContent(const std::wstring& folderPath, const std::wstring& dataFolder,
                           std::shared_ptr<const DirectoryListing>& listing)
{
    if (folderPath.empty())
    {
        NORV_TRACE(contentSource, TraceWarning, "<< invalid parameters");
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    // A failed poll has emptied the cache, which is all that matters here.
    getDirectoryChange(dataFolder);
    const Known known = LookUp(folderPath);
    listing = known.listing;
    if (!listing->empty())
    {
        return PGSP_OK;
    }

    Result result = NoListing;
    if (const auto scanned = Scan(folderPath))
    {
        Keep(folderPath, scanned, known.clearings);
        listing = scanned;
        result = PGSP_OK;
    }
    NORV_TRACE(contentSource, TraceExit, "<< retVal=%d", result);
    return result;
}

} // namespace norvepa
