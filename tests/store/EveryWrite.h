#pragma once

// The writes as one table, for what they have in common: each on the same document, of which it changes one
// thing.

#include "frame/Result.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>
#include <vector>

namespace norvepa::test
{

struct Write
{
    const char* name;
    Result (*call)(const wchar_t* filePath);
    XmlContent after; // what stands below the document's root behind it
    Result notFound;  // where the document holds nothing of it
    bool beside;      // saves to the "(temp)" file
};

void PrintTo(const Write& write, std::ostream* out);

[[nodiscard]] const std::vector<Write>& EveryWrite();
[[nodiscard]] std::string NameOf(const testing::TestParamInfo<Write>& info);

// What stands below the root of the document in which every write finds something.
[[nodiscard]] XmlContent WritableContent();

} // namespace norvepa::test
