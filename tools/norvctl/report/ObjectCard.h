#pragma once

// One object of the page: a line that unfolds to its values.

#include "report/Changes.h"
#include "report/Html.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace norvctl::report
{

// Where things of the page are, so that they can be linked. Names are compared as the library does.
class Places
{
public:
    explicit Places(const MarkedObjects& objects);

    // The part of an address behind "#"; empty when the page has no such object.
    [[nodiscard]] std::string Of(Kind kind, const std::string& name) const;

    // By the word that a finding has for its kind.
    [[nodiscard]] std::string Of(const std::string& word, const std::string& name) const;

private:
    std::map<std::pair<Kind, std::wstring>, std::string> m_anchors;
};

struct FindingCounts
{
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

[[nodiscard]] const char* WordOf(Change change); // "added"; empty for none

// A text that leads to a place, or the text alone when there is none.
void WriteLink(Html& html, const std::string& text, const std::string& anchor);

void WriteCard(Html& html, const MarkedObject& object, const Places& places, const FindingCounts& findings);

} // namespace norvctl::report
