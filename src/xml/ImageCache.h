#pragma once

// The images of files that the process keeps for later calls.
//
// Callers may rely on: finding one never waits for another thread. At most 4,096 images are kept, and 22 MB
// of them, in 16 parts by their files' paths; a part that is full lets go of one that chance names, so that a
// walk over more files than there is room for still finds most of what was kept. What a caller holds stays
// readable for as long as it is held. Callers must: ask with the stamp of the file as it is now, and offer
// only images that were read behind a stamp that is certain.

#include "win/FileStamp.h"
#include "xml/XmlImage.h"

#include <memory>
#include <string>
#include <string_view>

namespace norvepa
{

// Null unless the image of just this file with just this stamp is kept.
[[nodiscard]] std::shared_ptr<const XmlImage> FindImage(std::wstring_view path, const win::FileStamp& stamp);

// In the place of an older one of this file. Does nothing when there is no room for it.
void KeepImage(const std::wstring& path, const win::FileStamp& stamp,
               const std::shared_ptr<const XmlImage>& image);

void DropImages() noexcept;

// When the module goes.
void FreeImages() noexcept;

} // namespace norvepa
