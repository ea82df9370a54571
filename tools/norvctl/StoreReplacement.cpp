#include "StoreReplacement.h"

#include "Progress.h"
#include "StoreFiles.h"
#include "Text.h"

#include <windows.h>

#include <fmt/format.h>
#include <ranges>
#include <stdexcept>

namespace norvctl
{

namespace
{

using Deed = void (*)(const std::wstring& root, const std::wstring& name, const StoreSnapshot& store);

void Put(const std::wstring& root, const std::wstring& name, const StoreSnapshot& store)
{
    const auto file = store.files.find(name); // whose name may be of another case
    PutFile(PathBelow(root, file->first), file->second);
}

void Remove(const std::wstring& root, const std::wstring& name, const StoreSnapshot& /*store*/)
{
    RemoveFile(PathBelow(root, name));
}

void Make(const std::wstring& root, const std::wstring& name, const StoreSnapshot& store)
{
    MakeFolder(PathBelow(root, name), store.folders.find(name)->second);
}

void Unmake(const std::wstring& root, const std::wstring& name, const StoreSnapshot& /*store*/)
{
    RemoveFolder(PathBelow(root, name));
}

struct Step
{
    const std::wstring* name;
    Deed deed; // from the store that is to be
    Deed undo; // from the one that was
};
using Steps = std::vector<Step>;

// A file may stand where a folder was: what goes, goes first.
Steps StepsFor(const StoreDifference& difference)
{
    Steps steps;
    const auto add = [&](const std::vector<std::wstring>& names, Deed deed, Deed undo) {
        for (const std::wstring& name : names)
        {
            steps.push_back({&name, deed, undo});
        }
    };
    add(difference.removedFiles, Remove, Put);
    add(difference.removedFolders, Unmake, Make);
    add(difference.addedFolders, Make, Unmake);
    add(difference.addedFiles, Put, Remove);
    add(difference.changedFiles, Put, Put);
    return steps;
}

// The first `count` steps, the last one first. Goes on where one can't be undone; the names of those.
std::vector<std::string> Undo(const std::wstring& root, const Steps& steps, std::size_t count,
                              const StoreSnapshot& was)
{
    std::vector<std::string> left;
    for (const Step& step : steps | std::views::take(count) | std::views::reverse)
    {
        try
        {
            step.undo(root, *step.name, was);
        }
        catch (const std::exception&)
        {
            left.push_back(ToUtf8(*step.name));
        }
    }
    return left;
}

} // namespace

void ReplaceStore(const std::wstring& root, const StoreSnapshot& now, const StoreSnapshot& then,
                  const StoreDifference& difference)
{
    const std::wstring path = AnyLengthPath(root);
    const Steps steps = StepsFor(difference);
    Progress progress("restore", steps.size());
    std::size_t done = 0;
    try
    {
        for (const Step& step : steps)
        {
            progress.Tell(done, ToUtf8(*step.name));
            step.deed(path, *step.name, then);
            ++done;
        }
    }
    catch (const std::exception& error)
    {
        progress.Clear();
        const std::vector<std::string> left = Undo(path, steps, done, now);
        if (left.empty())
        {
            throw std::runtime_error(fmt::format("{}; all is as it was before", error.what()));
        }
        throw BrokenReplacement(
            fmt::format("{}; {} could not be put back as it was", error.what(), fmt::join(left, ", ")));
    }
}

} // namespace norvctl
