#include "report/Changes.h"

#include "Text.h"

#include <algorithm>
#include <deque>
#include <map>
#include <set>
#include <utility>

namespace norvctl::report
{

namespace
{

using ObjectKey = std::pair<Kind, std::wstring>; // the name in small letters

ObjectKey KeyOf(const Object& object)
{
    return {object.kind, ToLower(ToWide(object.name))};
}

MarkedObject Marked(Object object, Change change)
{
    MarkedObject marked;
    marked.change = change;
    for (SheetSection& section : object.sections)
    {
        MarkedSection& target = marked.sections.emplace_back();
        target.name = section.name;
        for (SheetValue& value : section.values)
        {
            target.values.push_back({std::move(value), change, {}});
        }
    }
    object.sections.clear();
    marked.object = std::move(object);
    return marked;
}

// The values of an older object that haven't been met in the newer one yet.
class OlderValues
{
public:
    explicit OlderValues(const Object& object)
    {
        for (const SheetSection& section : object.sections)
        {
            for (const SheetValue& value : section.values)
            {
                m_values[{section.name, value.name}].push_back(value);
            }
            m_sections.push_back(section.name);
        }
    }

    // Marks a value by the first of its name that is left, and takes that away.
    void Mark(const std::string& section, MarkedValue& value)
    {
        const auto found = m_values.find({section, value.present.name});
        if (found == m_values.end() || found->second.empty())
        {
            value.change = Change::Added;
            return;
        }
        if (found->second.front().value != value.present.value)
        {
            value.change = Change::Changed;
            value.before = found->second.front().value;
        }
        found->second.pop_front();
    }

    // What is left of a section.
    [[nodiscard]] std::vector<MarkedValue> Removed(const std::string& section) const
    {
        std::vector<MarkedValue> removed;
        for (const auto& [key, values] : m_values)
        {
            if (key.first == section)
            {
                for (const SheetValue& value : values)
                {
                    removed.push_back({value, Change::Removed, {}});
                }
            }
        }
        return removed;
    }

    [[nodiscard]] const std::vector<std::string>& Sections() const { return m_sections; }

private:
    std::map<std::pair<std::string, std::string>, std::deque<SheetValue>> m_values;
    std::vector<std::string> m_sections;
};

bool HasChange(const MarkedObject& object)
{
    return std::any_of(object.sections.begin(), object.sections.end(), [](const MarkedSection& section) {
        return std::any_of(section.values.begin(), section.values.end(),
                           [](const MarkedValue& value) { return value.change != Change::None; });
    });
}

// Behind the last section of its name; in a new one if that is gone.
void AddRemoved(MarkedObject& object, const OlderValues& older)
{
    std::set<std::string> done;
    for (const std::string& name : older.Sections())
    {
        std::vector<MarkedValue> removed = older.Removed(name);
        if (removed.empty() || !done.insert(name).second)
        {
            continue;
        }
        const auto last = std::find_if(object.sections.rbegin(), object.sections.rend(),
                                       [&](const MarkedSection& section) { return section.name == name; });
        if (last == object.sections.rend())
        {
            object.sections.push_back({name, std::move(removed)});
            continue;
        }
        std::move(removed.begin(), removed.end(), std::back_inserter(last->values));
    }
}

MarkedObject Compared(const Object& before, Object object)
{
    OlderValues older(before);
    MarkedObject marked = Marked(std::move(object), Change::None);
    for (MarkedSection& section : marked.sections)
    {
        for (MarkedValue& value : section.values)
        {
            older.Mark(section.name, value);
        }
    }
    AddRemoved(marked, older);
    marked.change = HasChange(marked) ? Change::Changed : Change::None;
    return marked;
}

} // namespace

MarkedObjects Unmarked(Objects objects)
{
    MarkedObjects marked;
    marked.reserve(objects.size());
    for (Object& object : objects)
    {
        marked.push_back(Marked(std::move(object), Change::None));
    }
    return marked;
}

MarkedObjects MarkChanges(const Objects& before, Objects objects)
{
    std::map<ObjectKey, const Object*> older;
    std::set<Kind> kinds{Kind::LogName, Kind::LogDevice};
    for (const Object& object : before)
    {
        older.emplace(KeyOf(object), &object);
        kinds.insert(object.kind);
    }

    MarkedObjects marked;
    marked.reserve(objects.size());
    for (Object& object : objects)
    {
        const auto found = older.find(KeyOf(object));
        if (found != older.end())
        {
            marked.push_back(Compared(*found->second, std::move(object)));
            older.erase(found);
            continue;
        }
        const Change change = kinds.count(object.kind) != 0 ? Change::Added : Change::None;
        marked.push_back(Marked(std::move(object), change));
    }
    for (const auto& [key, object] : older)
    {
        marked.push_back(Marked(*object, Change::Removed));
    }
    std::stable_sort(marked.begin(), marked.end(), [](const MarkedObject& left, const MarkedObject& right) {
        return left.object.kind < right.object.kind;
    });
    return marked;
}

} // namespace norvctl::report
