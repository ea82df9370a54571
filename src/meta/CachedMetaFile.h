#pragma once

// The memo of constraints that were looked for in catalogue files: the value found, or that there was none.
//
// Callers may rely on: an entry is never lost or changed, so a constraint that wasn't there once is not
// looked for again, whatever becomes of the file. An entry is made with its outcome: no thread takes
// another's unfinished look-up for a constraint that isn't there. Callers must not: give a path once with and
// once without its extension; those are two files here.

#include "frame/Result.h"

#include <optional>
#include <string>
#include <string_view>

namespace norvepa
{

// True when the memo knows: `result` is then PGSP_OK, with `value` set, or PGSP_ERR_PARAM_NOT_FOUND. False,
// with both untouched, when the file has to be asked. Names are compared whole, without regard to case.
[[nodiscard]] bool ConstraintExistsAlready(std::wstring_view filePath, std::wstring_view param,
                                           std::wstring_view constraint, std::wstring& value, Result& result);

// Remembers a constraint that was looked for, with its value if one was found. At most 65,536 constraints of
// as many files are remembered; what comes later is looked for each time.
void InsertConstraintToCachedMetaFile(std::wstring_view filePath, std::wstring_view param,
                                      std::wstring_view constraint, const std::optional<std::wstring>& value);

// When the module goes.
void FreeConstraints() noexcept;

} // namespace norvepa
