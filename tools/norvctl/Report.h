#pragma once

// How an answer is told: as text for people, or as one JSON document for programs.

#include "Table.h"

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace norvctl
{

using Json = nlohmann::ordered_json;

struct Report
{
    bool json = false;
    bool headings = false; // above tables also where nobody looks

    // One answer: `text` as it stands, with a line feed, or `document`.
    void Answer(std::string_view text, const Json& document) const;

    // On a console the table has headings and fits the window.
    void Answer(const Table& table, const Json& document) const;

    // How tables are laid out where standard output leads to.
    [[nodiscard]] TableForm Form() const;
};

} // namespace norvctl
