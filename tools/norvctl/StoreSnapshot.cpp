#include "StoreSnapshot.h"

#include "Progress.h"
#include "StoreFiles.h"
#include "Text.h"

#include <windows.h>

#include <fmt/format.h>
#include <stdexcept>
#include <vector>

namespace norvctl
{

const std::uint32_t KeptAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

namespace
{

void RequireKeepable(const std::wstring& name, const FolderEntry& entry)
{
    const std::string why = entry.isLink ? "it is a link to elsewhere" : WhyRefused(name);
    if (!why.empty())
    {
        throw std::runtime_error(fmt::format("{}: a backup cannot keep it: {}", ToUtf8(name), why));
    }
}

// The names of the files in a folder and all below it; its folders go into the snapshot.
void Gather(const std::wstring& root, const std::wstring& folder, StoreSnapshot& snapshot,
            std::vector<std::wstring>& files)
{
    for (const FolderEntry& entry : ListFolder(PathBelow(root, folder)))
    {
        const std::wstring name = folder.empty() ? entry.name : folder + L'\\' + entry.name;
        const bool isFolder = (entry.attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (!isFolder && IsLeftOver(name))
        {
            continue;
        }
        RequireKeepable(name, entry);
        if (!isFolder)
        {
            files.push_back(name);
            continue;
        }
        snapshot.folders.emplace(name, entry.attributes & KeptAttributes);
        Gather(root, name, snapshot, files);
    }
}

} // namespace

std::size_t StoreSnapshot::Bytes() const
{
    std::size_t bytes = 0;
    for (const auto& [name, file] : files)
    {
        bytes += file.bytes.size();
    }
    return bytes;
}

StoreSnapshot ReadSnapshot(const std::wstring& root)
{
    const std::wstring path = AnyLengthPath(root);
    StoreSnapshot snapshot;
    std::vector<std::wstring> names;
    Gather(path, {}, snapshot, names);
    Progress progress("read", names.size());
    std::size_t done = 0;
    for (const std::wstring& name : names)
    {
        progress.Tell(done++, ToUtf8(name));
        if (auto file = ReadKeptFile(PathBelow(path, name)))
        {
            snapshot.files.emplace(name, *std::move(file));
        }
    }
    return snapshot;
}

} // namespace norvctl
