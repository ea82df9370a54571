#include "StoreWatch.h"

#include "StorePaths.h"
#include "StoreRoots.h"

#include <iterator>
#include <utility>
#include <vector>

namespace norvctl
{

namespace
{

// In milliseconds. What is heard at once is looked at once.
constexpr ULONGLONG Quiet = 30;
constexpr ULONGLONG BetweenLooks = 30;

const StoreRoot& RootOf(StorePart part)
{
    return part == StorePart::Data ? DataRoot : ProgramRoot;
}

} // namespace

StorePartWatch::StorePartWatch(StorePart part, KnownFiles::Tell tell)
    : m_part(part), m_tell(tell), m_files(part, std::move(tell))
{
}

std::wstring StorePartWatch::PathOfPart() const
{
    const std::wstring root = PathOf(RootOf(m_part));
    return root.empty() ? root : root + (m_part == StorePart::Data ? L"\\data" : L"\\meta");
}

// The watch stands ahead of the reading, so that nothing is missed between the two.
bool StorePartWatch::Begin()
{
    m_folder = PathOfPart();
    m_changes = FolderChanges::Of(m_folder);
    if (!m_changes)
    {
        return false;
    }
    m_files.ReadAll(m_folder);
    return true;
}

void StorePartWatch::Hear(const std::wstring& path)
{
    const Clock now = GetTickCount64();
    m_heard.try_emplace(path, Heard{now, now + Quiet}).first->second.last = now;
}

void StorePartWatch::HearAll()
{
    std::vector<std::wstring> paths = FilesBelow(m_folder);
    const std::vector<std::wstring> known = m_files.Paths();
    paths.insert(paths.end(), known.begin(), known.end());
    for (const std::wstring& path : paths)
    {
        Hear(path);
    }
}

void StorePartWatch::TakeHeard()
{
    if (!m_changes)
    {
        return;
    }
    const std::optional<std::vector<FolderChange>> changes = m_changes->Take();
    if (!changes)
    {
        HearAll();
        return;
    }
    for (const FolderChange& change : *changes)
    {
        HearOf(change);
    }
}

void StorePartWatch::HearOf(const FolderChange& change)
{
    if (change.action == FILE_ACTION_RENAMED_NEW_NAME && m_oldName)
    {
        m_files.Rename(*m_oldName, change.path);
    }
    m_oldName = change.action == FILE_ACTION_RENAMED_OLD_NAME ? std::optional(change.path) : std::nullopt;
    if (change.action != FILE_ACTION_MODIFIED && IsOfFolder(change.path))
    {
        HearAll();
    }
    else if (ObjectAt(m_part, change.path))
    {
        Hear(change.path);
    }
}

bool StorePartWatch::IsOfFolder(const std::wstring& path) const
{
    return m_files.IsAnyBelow(path) || IsFolder(m_folder + L'\\' + path);
}

void StorePartWatch::LookAtHeard()
{
    const Clock now = GetTickCount64();
    for (auto heard = m_heard.begin(); heard != m_heard.end();)
    {
        auto& [path, when] = *heard;
        const bool isDue = when.due <= now;
        when.due = isDue ? now + BetweenLooks : when.due;
        const bool isSettled = isDue && m_files.LookAt(path, now - when.last) == KnownFiles::Outcome::Settled;
        heard = isSettled ? m_heard.erase(heard) : std::next(heard);
    }
}

void StorePartWatch::LookAtFolder()
{
    const std::wstring folder = PathOfPart();
    if (m_changes && folder == m_folder && m_changes->IsAlive())
    {
        return;
    }
    const StoreObject root{"store", m_part == StorePart::Data ? "data" : "catalogue"};
    const bool wasThere = m_changes != nullptr;
    m_folder = folder;
    m_files.MoveTo(folder);
    m_changes = folder.empty() ? nullptr : FolderChanges::Of(folder);
    if (!m_changes)
    {
        m_heard.clear();
        m_isLost = m_isLost || wasThere;
        if (wasThere)
        {
            m_tell({root, "gone", {}});
        }
        return;
    }
    if (std::exchange(m_isLost, false))
    {
        m_tell({root, "back", {}});
    }
    HearAll();
}

} // namespace norvctl
