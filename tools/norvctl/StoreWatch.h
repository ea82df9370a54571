#pragma once

// Following the files of the store, whoever changes them.

#include "FolderChanges.h"
#include "KnownFiles.h"
#include "StoreNames.h"
#include "StoreObject.h"

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace norvctl
{

// One of the two folders that hold the store. All of it runs on one thread.
class StorePartWatch
{
public:
    StorePartWatch(StorePart part, KnownFiles::Tell tell);

    // Reads everything as it is now. False when the folder isn't there, or nothing is told of it; it is taken
    // up when it comes, and all that is in it then is new.
    [[nodiscard]] bool Begin();

    // Something to wait for; null when the folder isn't there.
    [[nodiscard]] HANDLE event() const { return m_changes ? m_changes->event() : nullptr; }

    // Whether there are files to be looked at again shortly, as ones that are half-written.
    [[nodiscard]] bool IsBusy() const { return !m_heard.empty(); }

    void TakeHeard(); // what the system has told since the last time
    void LookAtHeard();

    // Whether the folder is still there and the same. Its loss is told once, and so is its return, when
    // everything is looked at anew.
    void LookAtFolder();

private:
    using Clock = ULONGLONG; // milliseconds since the start of the system

    struct Heard
    {
        Clock last; // when something was heard of it last
        Clock due;  // when it is to be looked at
    };

    [[nodiscard]] std::wstring PathOfPart() const;
    void Hear(const std::wstring& path);
    void HearAll();
    void HearOf(const FolderChange& change);
    [[nodiscard]] bool IsOfFolder(const std::wstring& path) const;

    StorePart m_part;
    KnownFiles::Tell m_tell;
    KnownFiles m_files;
    std::wstring m_folder;
    std::unique_ptr<FolderChanges> m_changes;
    bool m_isLost = false;
    std::map<std::wstring, Heard, NameOrder> m_heard; // by the paths below the folder
    std::optional<std::wstring> m_oldName;            // the first half of a renaming
};

} // namespace norvctl
