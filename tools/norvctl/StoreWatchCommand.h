#pragma once

// `watch` of the whole store.

#include "Report.h"

namespace norvctl
{

struct StoreWatchLimits
{
    unsigned count; // of changes that are told
    double timeout; // seconds without a change; 0 waits for ever
};

// Prints a line for each change until there were so many, or Ctrl-C comes. Throws when there is no data
// folder at the beginning, when the time is up, and when nobody takes the lines.
void WatchStore(const Report& report, const StoreWatchLimits& limits);

} // namespace norvctl
