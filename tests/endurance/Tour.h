#pragma once

// What the catalogue says of a parameter is kept until the library is unloaded, for each file in which it was
// looked up. Which files these are follows from what log devices happen to be at the time; so chance would
// find something new to keep for very long.

#include "support/LoadedLibrary.h"

namespace norvepa::test
{

// Asks the boards and protocols for all that the calls may want to know of a parameter, as they are.
void AskForAllRules(const Exports& library);

} // namespace norvepa::test
