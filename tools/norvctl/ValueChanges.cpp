#include "ValueChanges.h"

#include <algorithm>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

Json AsJson(const std::optional<std::string>& value)
{
    return value ? Json(*value) : Json(nullptr);
}

} // namespace

std::vector<ValueChange> ChangesBetween(std::vector<NameAndValue> before,
                                        const std::vector<NameAndValue>& after)
{
    std::vector<ValueChange> changes;
    for (const NameAndValue& now : after)
    {
        const auto was = std::find_if(before.begin(), before.end(),
                                      [&](const NameAndValue& pair) { return pair.name == now.name; });
        if (was == before.end())
        {
            changes.push_back({now.name, std::nullopt, now.value});
            continue;
        }
        if (was->value != now.value)
        {
            changes.push_back({now.name, was->value, now.value});
        }
        before.erase(was);
    }
    for (const NameAndValue& gone : before)
    {
        changes.push_back({gone.name, gone.value, std::nullopt});
    }
    return changes;
}

std::vector<std::string> AsTexts(const std::vector<ValueChange>& changes)
{
    std::vector<std::string> texts;
    texts.reserve(changes.size());
    for (const ValueChange& change : changes)
    {
        texts.push_back(fmt::format("{}: {} -> {}", change.name, change.before.value_or("-"),
                                    change.after.value_or("-")));
    }
    return texts;
}

Json AsArray(const std::vector<ValueChange>& changes)
{
    Json array = Json::array();
    for (const ValueChange& change : changes)
    {
        array.push_back(
            {{"name", change.name}, {"old", AsJson(change.before)}, {"new", AsJson(change.after)}});
    }
    return array;
}

} // namespace norvctl
