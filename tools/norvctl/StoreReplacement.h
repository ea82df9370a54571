#pragma once

// Makes a data folder as another snapshot, all of it or nothing.
//
// File by file, each by one renaming in its folder: other processes watch the folders, and a folder that
// somebody has open can't be renamed. Their watches hear of each file. What has been done is undone when a
// step fails.

#include "StoreDifference.h"
#include "StoreSnapshot.h"

#include <stdexcept>
#include <string>

namespace norvctl
{

// Some of it is done and can't be undone.
class BrokenReplacement : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Throws with the step that failed; unless it is a BrokenReplacement, all is as it was before. Ctrl+C waits.
// Shows how far it has come.
void ReplaceStore(const std::wstring& root, const StoreSnapshot& now, const StoreSnapshot& then,
                  const StoreDifference& difference);

} // namespace norvctl
