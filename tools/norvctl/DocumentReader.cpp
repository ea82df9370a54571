#include "DocumentReader.h"

#include "Text.h"

#include <fmt/format.h>
#include <set>
#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr int DeepestLevel = 5; // of containers within containers

// The keys so far of an object that is being parsed.
struct ObjectKeys
{
    std::set<std::string> all;
    std::string last;
};

std::string PlaceOf(const std::vector<ObjectKeys>& open)
{
    std::string place;
    for (const ObjectKeys& object : open)
    {
        place += (place.empty() ? "" : "/") + object.last;
    }
    return place;
}

} // namespace

void DocumentReader::Refuse(const std::string& place, std::string_view what) const
{
    throw std::runtime_error(place.empty() ? fmt::format("{}: {}", m_source, what)
                                           : fmt::format("{}: {}: {}", m_source, place, what));
}

void DocumentReader::Require(bool isRight, const std::string& place, std::string_view what) const
{
    if (!isRight)
    {
        Refuse(place, what);
    }
}

Json DocumentReader::Parse(const std::string& bytes) const
{
    std::vector<ObjectKeys> open;
    const auto look = [&](int depth, Json::parse_event_t event, const Json& parsed) {
        Require(depth <= DeepestLevel, PlaceOf(open), "no log device is nested so deep");
        if (event == Json::parse_event_t::object_start)
        {
            open.emplace_back();
        }
        else if (event == Json::parse_event_t::object_end)
        {
            open.pop_back();
        }
        else if (event == Json::parse_event_t::key)
        {
            open.back().last = parsed.get<std::string>();
            Require(open.back().all.insert(open.back().last).second, PlaceOf(open), "this key comes twice");
        }
        return true;
    };
    try
    {
        return Json::parse(bytes, look);
    }
    catch (const Json::exception& error)
    {
        Refuse({}, fmt::format("this isn't a JSON document: {}", error.what()));
    }
}

const Json& DocumentReader::Member(const Json& root, const std::string& key) const
{
    const auto member = root.find(key);
    Require(member != root.end(), key, "this is missing");
    return *member;
}

std::string DocumentReader::Text(const Json& value, const std::string& place) const
{
    Require(value.is_string(), place, "this isn't a text");
    auto text = value.get<std::string>();
    Require(text.find('\0') == std::string::npos, place, "a text can't hold a zero character");
    return text;
}

std::vector<ValueGroup> DocumentReader::Groups(const Json& root, const std::string& key) const
{
    const Json& object = Member(root, key);
    Require(object.is_object(), key, "this isn't an object");
    std::vector<ValueGroup> groups;
    for (const auto& [name, values] : object.items())
    {
        const std::string place = key + '/' + name;
        groups.push_back(Group(Name(name, place), values, place));
    }
    return groups;
}

ValueGroup DocumentReader::Group(const std::string& name, const Json& values, const std::string& place) const
{
    Require(values.is_object(), place, "this isn't an object of values");
    ValueGroup group{name, {}};
    std::set<std::wstring> told;
    for (const auto& [key, value] : values.items())
    {
        const std::string below = place + '/' + key;
        Require(told.insert(ToLower(ToWide(Name(key, below)))).second, below,
                "this name comes twice, for case doesn't count: give it an array of its values");
        TakeValues(group, key, value, below);
    }
    return group;
}

std::string DocumentReader::Name(const std::string& key, const std::string& place) const
{
    Require(!key.empty() && key.find('\0') == std::string::npos, place, "this isn't a name");
    return key;
}

void DocumentReader::TakeValues(ValueGroup& group, const std::string& name, const Json& value,
                                const std::string& place) const
{
    if (!value.is_array())
    {
        group.values.push_back({name, Text(value, place)});
        return;
    }
    Require(!value.empty(), place, "there is no value in this array");
    for (std::size_t i = 0; i < value.size(); ++i)
    {
        group.values.push_back({name, Text(value[i], fmt::format("{}/{}", place, i))});
    }
}

} // namespace norvctl
