#pragma once

// What the goals are about, a group a file. Each measures on a store of its own, has the bodies that it
// compares take turns, prints what it found in microseconds, and adds its goals to the table.

#include "GoalTable.h"

#include <cstddef>

namespace norvepa::bench
{

// One value read from a file that stays as it is and from one that has changed, and one value set.
void MeasureReads(GoalTable& goals);
void MeasureSets(GoalTable& goals);

// All log devices walked, and looked up by identity.
void MeasureWalks(GoalTable& goals, std::size_t devices);

// A catalogue file parsed, and answers of a warm cache.
void MeasureParsing(GoalTable& goals);
void MeasureAnswers(GoalTable& goals);

// What the process holds once it has read so many log devices. To be measured ahead of the others, whose
// freed memory would be taken again.
void MeasureMemory(GoalTable& goals, std::size_t devices);

} // namespace norvepa::bench
