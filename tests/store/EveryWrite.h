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
    std::string tag; // of its trace; empty for one that tells nothing of its own
    Result (*call)(const wchar_t* filePath);
    XmlContent after;    // what stands below the document's root behind it
    XmlContent appended; // and behind all that the root holds
    Result notFound;     // where the document holds nothing of it; PGSP_OK for one that makes all it needs
    bool beside;         // saves to the "(temp)" file

    [[nodiscard]] XmlContent Whole() const { return XmlContent(after).Raw(appended.utf8()); }
};

void PrintTo(const Write& write, std::ostream* out);

[[nodiscard]] const std::vector<Write>& EveryWrite();
[[nodiscard]] std::vector<Write> WritesThatNeedAPlace(); // those that don't make all they need
[[nodiscard]] std::vector<Write> TellingWrites();        // those with a trace of their own
[[nodiscard]] std::vector<Write> SilentWrites();         // the others
[[nodiscard]] std::string NameOf(const testing::TestParamInfo<Write>& info);

// What stands below the root of the document in which every write finds something.
[[nodiscard]] XmlContent WritableContent();

// A document of such content. It has no namespace, so that those of new elements show.
[[nodiscard]] std::string WritableFile(const XmlContent& content);

} // namespace norvepa::test
