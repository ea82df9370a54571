#pragma once

// How an answer is told: as text for people, or as one JSON document for programs.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace norvctl
{

using Json = nlohmann::ordered_json;

struct Report
{
    bool json = false;

    // One answer: `text` as it stands, with a line feed, or `document`.
    void Answer(std::string_view text, const Json& document) const;
};

} // namespace norvctl
