#include "FileDifferences.h"

#include "Text.h"

#include <algorithm>

namespace norvctl
{

namespace
{

std::vector<NameAndValue>::iterator FindNamed(std::vector<NameAndValue>& values, const std::string& name)
{
    const auto exact = std::find_if(values.begin(), values.end(),
                                    [&](const NameAndValue& each) { return each.name == name; });
    return exact != values.end() ? exact
                                 : std::find_if(values.begin(), values.end(), [&](const NameAndValue& each) {
                                       return EqualNoCase(ToWide(each.name), ToWide(name));
                                   });
}

std::size_t CountOf(const std::vector<std::string>& names, const std::string& name)
{
    return static_cast<std::size_t>(std::count_if(names.begin(), names.end(), [&](const std::string& each) {
        return each == name || EqualNoCase(ToWide(each), ToWide(name));
    }));
}

const ValueGroup* FindGroup(const std::vector<ValueGroup>& groups, const std::string& name)
{
    const auto group = std::find_if(groups.begin(), groups.end(), [&](const ValueGroup& each) {
        return each.name == name || EqualNoCase(ToWide(each.name), ToWide(name));
    });
    return group == groups.end() ? nullptr : &*group;
}

void AppendDifferences(std::vector<Difference>& all, const std::vector<ValueGroup>& before,
                       const std::vector<ValueGroup>& after, GroupKind kind)
{
    const auto append = [&](const ValueGroup& was, const ValueGroup& is) {
        const std::vector<Difference> found = DifferencesBetween(was, is, kind);
        all.insert(all.end(), found.begin(), found.end());
    };
    for (const ValueGroup& group : after)
    {
        const ValueGroup* const was = FindGroup(before, group.name);
        append(was == nullptr ? ValueGroup{} : *was, group);
    }
    for (const ValueGroup& group : before)
    {
        if (FindGroup(after, group.name) == nullptr)
        {
            append(group, {group.name, {}});
        }
    }
}

Json AsJson(const std::optional<std::string>& value)
{
    return value ? Json(*value) : Json(nullptr);
}

} // namespace

std::vector<Difference> DifferencesBetween(const ValueGroup& before, const ValueGroup& after, GroupKind kind)
{
    const std::string& group = after.name;
    std::vector<NameAndValue> left = before.values;
    std::vector<std::string> seen;
    std::vector<Difference> differences;
    for (const NameAndValue& now : after.values)
    {
        const std::size_t occurrence = CountOf(seen, now.name);
        seen.push_back(now.name);
        const auto was = FindNamed(left, now.name);
        if (was == left.end())
        {
            differences.push_back({kind, group, occurrence, {now.name, std::nullopt, now.value}});
            continue;
        }
        if (was->value != now.value)
        {
            differences.push_back({kind, group, occurrence, {now.name, was->value, now.value}});
        }
        left.erase(was);
    }
    for (const NameAndValue& gone : left)
    {
        differences.push_back({kind, group, CountOf(seen, gone.name), {gone.name, gone.value, std::nullopt}});
        seen.push_back(gone.name);
    }
    return differences;
}

std::vector<Difference> DifferencesBetween(const FileValues& before, const FileValues& after)
{
    std::vector<Difference> all =
        DifferencesBetween(ValueGroup{{}, before.attributes}, {{}, after.attributes}, GroupKind::Attribute);
    AppendDifferences(all, before.sections, after.sections, GroupKind::Section);
    AppendDifferences(all, before.subdevices, after.subdevices, GroupKind::Subdevice);
    AppendDifferences(all, before.links, after.links, GroupKind::Link);
    return all;
}

std::string WordsFor(const Difference& difference)
{
    switch (difference.kind)
    {
    case GroupKind::Attribute:
        return "LogDevice";
    case GroupKind::Subdevice:
        return "subdevices\\" + difference.group;
    default:
        return difference.group;
    }
}

std::vector<std::string> AsTexts(const std::vector<Difference>& differences)
{
    std::vector<std::string> lines;
    std::string place;
    for (const Difference& each : differences)
    {
        const std::string words = WordsFor(each);
        if (words != place)
        {
            lines.push_back(words);
            place = words;
        }
        lines.push_back("  " + AsTexts(std::vector{each.change}).front());
    }
    return lines;
}

Json AsArray(const std::vector<Difference>& differences)
{
    Json array = Json::array();
    for (const Difference& each : differences)
    {
        array.push_back({{"section", WordsFor(each)},
                         {"name", each.change.name},
                         {"old", AsJson(each.change.before)},
                         {"new", AsJson(each.change.after)}});
    }
    return array;
}

} // namespace norvctl
