#pragma once

// The reads as one table, for what they have in common: each on the same document, in which it finds
// something. Eight of them pull, the others load the document as a whole.

#include "frame/Result.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>
#include <vector>

namespace norvepa::test
{

// The result of a read and all of its outputs, in their order; a buffer that is untouched counts as the
// text that the output strings hold before.
struct Outcome
{
    Result result;
    std::vector<std::wstring> outputs;

    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out);

struct Read
{
    const char* name;
    Outcome (*call)(const wchar_t* filePath);
    Outcome found;    // in the document
    Outcome notFound; // where the document says nothing
    Result missing;   // where there is no file

    // The outputs as they were before.
    [[nodiscard]] Outcome Refused(Result result) const;
};

void PrintTo(const Read& read, std::ostream* out);

[[nodiscard]] const std::vector<Read>& EveryRead();
[[nodiscard]] const std::vector<Read>& PullReads();
[[nodiscard]] const std::vector<Read>& DocumentReads();
[[nodiscard]] const std::vector<Read>& EscapingReads(); // those that escape the name they are given
[[nodiscard]] std::string NameOf(const testing::TestParamInfo<Read>& info);

// What stands below the root of the document in which every read finds something.
[[nodiscard]] XmlContent ReadableContent();

} // namespace norvepa::test
