#pragma once

// What the watch drops in the cache of listings. Internal to this folder: all others ask directoryCache.h.

#include "win/Mutex.h"

#include <string>

namespace norvepa
{

// Guards the listings, and not the scans for them. Whoever polls takes it under watchMutex, never the other
// way round.
extern constinit win::RecursiveMutex directoryMutex;

// Both while directoryMutex is held. A scan that began before either may have seen the folder as it was, and
// is not kept.
void DropListing(const std::wstring& folder); // of this folder, compared as paths are
void DropAllListings();

// When the module goes.
void FreeListings() noexcept;

} // namespace norvepa
