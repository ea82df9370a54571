#pragma once

// What is done over and over on our device and our name, each step by a word. Whatever it is answered, a step
// counts; so that what is right is told in one place, whoever asks.

#include "exports_whole/Tally.h"
#include "support/LoadedLibrary.h"

#include <string_view>

namespace norvepa::test
{

using Step = void (*)(const Exports& library, unsigned round, Tally& tally);

// Throws when there is none.
[[nodiscard]] Step StepCalled(std::string_view word);

// Questions. Right is the text of any round.
void AskDevice(const Exports& library, unsigned round, Tally& tally);
void AskName(const Exports& library, unsigned round, Tally& tally);
void AskNote(const Exports& library, unsigned round, Tally& tally); // which may be missing

// Questions of the only writer. Right is what has been set in this round.
void LookAtDevice(const Exports& library, unsigned round, Tally& tally);
void LookAtName(const Exports& library, unsigned round, Tally& tally);

// Changes. Right is success.
void SetDevice(const Exports& library, unsigned round, Tally& tally);
void SetName(const Exports& library, unsigned round, Tally& tally);
void DeleteNote(const Exports& library, unsigned round, Tally& tally); // having set it
void SwapDevice(const Exports& library, unsigned round, Tally& tally); // for a temporary one with the text

} // namespace norvepa::test
