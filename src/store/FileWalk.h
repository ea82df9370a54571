#pragma once

// A walk over the names of a folder's files, as NorvXMLEnumFile tells them one by one.
//
// Callers may rely on: the folder is looked at once, at the first step, and all steps are those of that
// moment, unless the folders can't be watched: then each step looks anew. Callers must not: keep a walk
// beyond the call of an export.

#include "frame/Result.h"
#include "notify/directoryCache.h"

#include <cstdint>
#include <memory>
#include <string>

namespace norvepa
{

class FileWalk
{
public:
    FileWalk(std::wstring folderPath, std::wstring dataFolder);

    // As NorvXMLEnumFile, traced as such. `name` is untouched but for PGSP_OK.
    [[nodiscard]] Result At(std::uint32_t index, std::wstring* name);

private:
    std::wstring m_folderPath;
    std::wstring m_dataFolder;
    Result m_escaping;
    std::shared_ptr<const DirectoryListing> m_listing; // null until a step has found one
};

} // namespace norvepa
