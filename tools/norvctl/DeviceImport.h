#pragma once

// A log device's document, put into a temporary log device value by value, each checked by the library.

#include "DeviceDocument.h"
#include "FileDifferences.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace norvctl
{

struct ImportRefusal
{
    Difference difference;
    int32_t result;
    std::string why; // what is allowed, or what else there is to say; may be empty
};

// Sets what differs, removes what the document doesn't have, and compares the outcome with the document. Goes
// on behind a refusal, so that all of them are told; none when the log device now is what the document says.
// `look` is called ahead of each value, and may throw.
[[nodiscard]] std::vector<ImportRefusal> MakeEqual(const std::string& device, const FileValues& wanted,
                                                   const std::function<void()>& look);

// What an import would change: without what the library takes for the same, a board's name with "*" and
// without it.
[[nodiscard]] std::vector<Difference> ImportChanges(const std::string& device, const FileValues& wanted);

// The board's identity as a catalogue file has it.
[[nodiscard]] std::string WithoutStar(const std::string& deviceId);

} // namespace norvctl
