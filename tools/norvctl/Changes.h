#pragma once

// A value that is set, and whether that made a difference.

#include "Reads.h"
#include "ValueChanges.h"

#include <functional>
#include <string>
#include <vector>

namespace norvctl
{

// Makes a change of a value in a file of a folder word, and waits until the watches have been told of it.
// `read` answers the value; `change` throws when it is refused. True when the value is another than before.
[[nodiscard]] bool MakesDifference(const std::wstring& folder, const std::wstring& file,
                                   const std::function<ReadResult()>& read,
                                   const std::function<void()>& change);

// The same for a change that always is one.
void MakeChange(const std::wstring& folder, const std::wstring& file, const std::function<void()>& change);

// The same for a change that may be announced step by step.
void MakeChangeOfSteps(const std::wstring& folder, const std::wstring& file,
                       const std::function<void()>& change);

struct ChangeOfValues
{
    int32_t result;
    std::vector<ValueChange> changes; // there may be some whatever the result
};

// The same for a change of any number of values, also none, each of which is announced. `read` answers all of
// them.
[[nodiscard]] ChangeOfValues MakeChangeOfValues(const std::wstring& folder, const std::wstring& file,
                                                const std::function<std::vector<NameAndValue>()>& read,
                                                const std::function<int32_t()>& change);

} // namespace norvctl
