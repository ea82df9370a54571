#pragma once

// The words that may stand at the end of a command line.

#include "CommandLine.h"

#include <functional>

namespace norvctl
{

struct Candidate
{
    std::string word;
    std::string help; // may be empty
};

// The values that the store has for a word as DEVICE, in the place where a command line has led to.
using StoreValues = std::function<std::vector<std::string>(const std::string& word, const CommandLine& line)>;

// All that begin as the present word does: with regard to case, or else without. In their order.
[[nodiscard]] std::vector<Candidate> CandidatesFor(const CLI::App& root,
                                                   const std::vector<std::string>& words,
                                                   const std::string& present,
                                                   const StoreValues& storeValues);

} // namespace norvctl
