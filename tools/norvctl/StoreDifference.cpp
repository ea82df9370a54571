#include "StoreDifference.h"

#include "Text.h"

#include <algorithm>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

struct DifferenceTexts
{
    std::vector<std::string> added;
    std::vector<std::string> changed;
    std::vector<std::string> removed;
};

void Append(std::vector<std::string>& texts, const std::vector<std::wstring>& names, const char* end)
{
    for (const std::wstring& name : names)
    {
        texts.push_back(ToUtf8(name) + end);
    }
}

DifferenceTexts TextsOf(const StoreDifference& difference)
{
    DifferenceTexts texts;
    Append(texts.added, difference.addedFolders, "\\");
    Append(texts.added, difference.addedFiles, "");
    Append(texts.changed, difference.changedFiles, "");
    Append(texts.removed, difference.removedFiles, "");
    Append(texts.removed, difference.removedFolders, "\\");
    return texts;
}

// The names that the first has and the second hasn't.
template <typename Map>
std::vector<std::wstring> OnlyIn(const Map& first, const Map& second)
{
    std::vector<std::wstring> names;
    for (const auto& [name, entry] : first)
    {
        if (!second.contains(name))
        {
            names.push_back(name);
        }
    }
    return names;
}

std::vector<std::wstring> ChangedFiles(const StoreSnapshot& now, const StoreSnapshot& then)
{
    std::vector<std::wstring> names;
    for (const auto& file : then.files)
    {
        const auto present = now.files.find(file.first);
        if (present != now.files.end() && *present != file)
        {
            names.push_back(file.first);
        }
    }
    return names;
}

} // namespace

bool StoreDifference::IsEmpty() const
{
    return removedFiles.empty() && removedFolders.empty() && addedFolders.empty() && addedFiles.empty() &&
           changedFiles.empty();
}

StoreDifference DifferenceOf(const StoreSnapshot& now, const StoreSnapshot& then, Others others)
{
    StoreDifference difference;
    difference.addedFolders = OnlyIn(then.folders, now.folders);
    difference.addedFiles = OnlyIn(then.files, now.files);
    difference.changedFiles = ChangedFiles(now, then);
    if (others == Others::AreRemoved)
    {
        difference.removedFiles = OnlyIn(now.files, then.files);
        difference.removedFolders = OnlyIn(now.folders, then.folders);
        std::ranges::reverse(difference.removedFolders);
    }
    return difference;
}

Table AsTable(const StoreDifference& difference)
{
    const DifferenceTexts texts = TextsOf(difference);
    Table table({{"CHANGE", 8}, {"FILE", 1}});
    const auto add = [&](const char* what, const std::vector<std::string>& names) {
        for (const std::string& name : names)
        {
            table.Add({what, name});
        }
    };
    add("added", texts.added);
    add("changed", texts.changed);
    add("removed", texts.removed);
    return table;
}

void AddTo(Json& document, const StoreDifference& difference)
{
    const DifferenceTexts texts = TextsOf(difference);
    document["counts"] = {
        {"added", texts.added.size()}, {"changed", texts.changed.size()}, {"removed", texts.removed.size()}};
    document["added"] = texts.added;
    document["changed"] = texts.changed;
    document["removed"] = texts.removed;
}

std::string InShort(const StoreDifference& difference)
{
    const DifferenceTexts texts = TextsOf(difference);
    return fmt::format("{} added, {} changed, {} removed", texts.added.size(), texts.changed.size(),
                       texts.removed.size());
}

} // namespace norvctl
