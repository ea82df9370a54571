#pragma once

// What is known of the files of one part of the store, and what has changed of one that is looked at again.

#include "FileValues.h"
#include "StoreNames.h"
#include "StoreObject.h"
#include "ValueChanges.h"

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace norvctl
{

struct StoreChange
{
    StoreObject object; // a subdevice is named as the verbs name it
    const char* what;   // "value", "added", "removed", "renamed", "changed", "unreadable", "gone", "back"
    ValueChange value;  // of a value; of what is renamed the names, without a parameter
};

class KnownFiles
{
public:
    using Tell = std::function<void(const StoreChange& change)>;

    enum class Outcome
    {
        Settled,
        Unsettled // it is to be looked at again: it may be about to be replaced, or only half-written
    };

    KnownFiles(StorePart part, Tell tell);

    // As they are now, without telling of any. Paths are those below the folder, here and everywhere.
    void ReadAll(const std::wstring& folder);
    void MoveTo(const std::wstring& folder) { m_folder = folder; } // where they lie from now on

    // Tells what is another than it was. `waited` is how long ago, in milliseconds, something was heard of
    // the file last.
    [[nodiscard]] Outcome LookAt(const std::wstring& path, ULONGLONG waited);

    // Tells of a file that is known, and has a name now that no known one had.
    void Rename(const std::wstring& from, const std::wstring& to);

    [[nodiscard]] std::vector<std::wstring> Paths() const;
    [[nodiscard]] bool IsAnyBelow(const std::wstring& path) const; // whether it is a folder of theirs

private:
    struct Known
    {
        FileValues values; // of a file of the catalogue the fingerprint alone
        bool isReadable = true;
    };

    [[nodiscard]] Outcome LookAtMissing(const std::wstring& path, const StoreObject& object,
                                        ULONGLONG waited);
    [[nodiscard]] Outcome LookAtUnreadable(const std::wstring& path, const StoreObject& object,
                                           ULONGLONG waited);
    void Compare(const std::wstring& path, const StoreObject& object, FileValues values);
    void TellDifferences(const StoreObject& object, const FileValues& before, const FileValues& after) const;
    [[nodiscard]] FileValues Kept(FileValues values) const;

    StorePart m_part;
    Tell m_tell;
    std::wstring m_folder;
    std::map<std::wstring, Known, NameOrder> m_known;
};

} // namespace norvctl
