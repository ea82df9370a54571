#include "KnownFiles.h"

#include "FileDifferences.h"
#include "StorePaths.h"
#include "StoreRoots.h"
#include "Text.h"

#include <utility>

namespace norvctl
{

namespace
{

// In milliseconds. A file that is replaced is away for a moment, one that is written in several steps is half
// of what it will be.
constexpr ULONGLONG PatienceWithMissing = 150;
constexpr ULONGLONG PatienceWithUnreadable = 2000;

bool IsMissing(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
           (GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_PATH_NOT_FOUND);
}

StoreObject OwnerOf(const StoreObject& object, const Difference& difference)
{
    return difference.kind == GroupKind::Subdevice
               ? StoreObject{object.kind, object.name + '\\' + WordsFor(difference)}
               : object;
}

} // namespace

KnownFiles::KnownFiles(StorePart part, Tell tell) : m_part(part), m_tell(std::move(tell)) {}

void KnownFiles::ReadAll(const std::wstring& folder)
{
    m_folder = folder;
    for (const std::wstring& path : FilesBelow(m_folder))
    {
        if (!ObjectAt(m_part, path))
        {
            continue;
        }
        const std::optional<std::string> bytes = BytesOf(m_folder + L'\\' + path);
        std::optional<FileValues> values = bytes ? ParseFileValues(*bytes) : std::nullopt;
        m_known[path] = values ? Known{Kept(std::move(*values)), true} : Known{{}, false};
    }
}

std::vector<std::wstring> KnownFiles::Paths() const
{
    std::vector<std::wstring> paths;
    paths.reserve(m_known.size());
    for (const auto& [path, known] : m_known)
    {
        paths.push_back(path);
    }
    return paths;
}

bool KnownFiles::IsAnyBelow(const std::wstring& path) const
{
    const std::wstring below = path + L'\\';
    const auto first = m_known.lower_bound(below);
    return first != m_known.end() &&
           EqualNoCase(std::wstring_view(first->first).substr(0, below.size()), below);
}

void KnownFiles::Rename(const std::wstring& from, const std::wstring& to)
{
    const auto known = m_known.find(from);
    const std::optional<StoreObject> now = ObjectAt(m_part, to);
    if (known == m_known.end() || !now || m_known.contains(to))
    {
        return;
    }
    const std::optional<StoreObject> was = ObjectAt(m_part, known->first);
    if (!was || was->kind != now->kind)
    {
        return;
    }
    m_tell({*was, "renamed", {{}, was->name, now->name}});
    Known moved = std::move(known->second);
    m_known.erase(known);
    m_known[to] = std::move(moved);
}

KnownFiles::Outcome KnownFiles::LookAt(const std::wstring& path, ULONGLONG waited)
{
    const std::optional<StoreObject> object = ObjectAt(m_part, path);
    if (!object)
    {
        return Outcome::Settled;
    }
    const std::wstring whole = m_folder + L'\\' + path;
    const std::optional<std::string> bytes = BytesOf(whole);
    if (!bytes && IsMissing(whole))
    {
        return LookAtMissing(path, *object, waited);
    }
    std::optional<FileValues> values = bytes ? ParseFileValues(*bytes) : std::nullopt;
    if (!values)
    {
        return LookAtUnreadable(path, *object, waited);
    }
    Compare(path, *object, std::move(*values));
    return Outcome::Settled;
}

// Without the folder nothing can be said of what lies in it.
KnownFiles::Outcome KnownFiles::LookAtMissing(const std::wstring& path, const StoreObject& object,
                                              ULONGLONG waited)
{
    const auto known = m_known.find(path);
    if (known == m_known.end())
    {
        return Outcome::Settled;
    }
    if (waited < PatienceWithMissing || !IsFolder(m_folder))
    {
        return Outcome::Unsettled;
    }
    m_known.erase(known);
    m_tell({object, "removed", {}});
    return Outcome::Settled;
}

KnownFiles::Outcome KnownFiles::LookAtUnreadable(const std::wstring& path, const StoreObject& object,
                                                 ULONGLONG waited)
{
    if (waited < PatienceWithUnreadable)
    {
        return Outcome::Unsettled;
    }
    Known& known = m_known[path];
    if (known.isReadable)
    {
        known.isReadable = false;
        m_tell({object, "unreadable", {}});
    }
    return Outcome::Settled;
}

void KnownFiles::Compare(const std::wstring& path, const StoreObject& object, FileValues values)
{
    const auto known = m_known.find(path);
    if (known == m_known.end())
    {
        m_tell({object, "added", {}});
        m_known[path] = {Kept(std::move(values)), true};
        return;
    }
    const Known before = std::exchange(known->second, Known{Kept(std::move(values)), true});
    if (before.values.fingerprint != known->second.values.fingerprint)
    {
        TellDifferences(object, before.values, known->second.values);
    }
    else if (!before.isReadable)
    {
        m_tell({object, "changed", {}}); // back to what it was
    }
}

void KnownFiles::TellDifferences(const StoreObject& object, const FileValues& before,
                                 const FileValues& after) const
{
    const bool wasNeverRead = before.fingerprint == 0;
    const std::vector<Difference> differences =
        wasNeverRead ? std::vector<Difference>{} : DifferencesBetween(before, after);
    if (differences.empty())
    {
        m_tell({object, "changed", {}});
    }
    for (const Difference& difference : differences)
    {
        m_tell({OwnerOf(object, difference), "value", difference.change});
    }
}

// The catalogue is told by file: what it holds are no values.
FileValues KnownFiles::Kept(FileValues values) const
{
    if (m_part == StorePart::Data)
    {
        return values;
    }
    FileValues fingerprint;
    fingerprint.fingerprint = values.fingerprint;
    return fingerprint;
}

} // namespace norvctl
