#pragma once

// What has to change in a store so that it is as another.

#include "Report.h"
#include "StoreSnapshot.h"

#include <string>
#include <vector>

namespace norvctl
{

enum class Others // what the other store doesn't have
{
    AreRemoved,
    AreKept
};

// Names below the data root. A file has changed when its bytes, its write time, its attributes or the case of
// its name differ; the attributes of a folder stay as they are.
struct StoreDifference
{
    std::vector<std::wstring> removedFiles;
    std::vector<std::wstring> removedFolders; // each ahead of the one that it lies in
    std::vector<std::wstring> addedFolders;   // each behind the one that it lies in
    std::vector<std::wstring> addedFiles;
    std::vector<std::wstring> changedFiles;

    [[nodiscard]] bool IsEmpty() const;
};

[[nodiscard]] StoreDifference DifferenceOf(const StoreSnapshot& now, const StoreSnapshot& then,
                                           Others others);

// A line for each; an object of three lists and their lengths. A folder ends with a backslash.
[[nodiscard]] Table AsTable(const StoreDifference& difference);
void AddTo(Json& document, const StoreDifference& difference);
[[nodiscard]] std::string InShort(const StoreDifference& difference); // "2 added, 1 changed, 0 removed"

} // namespace norvctl
