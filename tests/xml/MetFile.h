#pragma once

// What is met on a walk over a whole file, written down so that two ways of walking can be held against each
// other: the pull engine itself, asked with nothing in between, and the reader that everything else uses.

#include "xml/PullReader.h"

#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace norvepa::test
{

struct MetNode
{
    XmlNodeType type = XmlNodeType_None;
    bool isActive = false;  // the walk, as it stands on the node
    std::wstring name = {}; // of an element's start and end
    std::wstring value = {};
    bool isEmpty = false;
    // In their order; nothing for one that isn't told.
    std::vector<std::optional<std::pair<std::wstring, std::wstring>>> attributes = {};

    bool operator==(const MetNode&) const = default;
};

void PrintTo(const MetNode& node, std::ostream* out);

struct MetFile
{
    bool isActiveAhead = false;
    std::vector<MetNode> nodes = {};
    bool isActiveBehind = false;

    bool operator==(const MetFile&) const = default;
};

// As text: the first node in which two walks differ is found by the eye.
void PrintTo(const MetFile& file, std::ostream* out);

// By the engine on a stream of the file. Throws when there is no engine or no file.
[[nodiscard]] MetFile WalkByTheEngine(const std::wstring& path);

// By a reader, opened here. Throws when it can't be.
[[nodiscard]] MetFile WalkByAReader(const std::wstring& path);

} // namespace norvepa::test
