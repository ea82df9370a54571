#pragma once

// A backup as a store to look at: extracted to a temporary folder, and the library led there.
//
//     const BackupReader backup(ToWide(file));
//     {
//         const OtherStore other(backup.DataFolder());
//         ... = ReadTexts(...); // as it was at the time of the backup
//     }
//     ... = ReadTexts(...); // as it is now

#include "StoreSnapshot.h"

#include <cstdint>
#include <string>

namespace norvctl
{

// A backup that has been found whole, and its files in a temporary folder, which goes with the object. The
// files have their names and write times, but may all be changed.
class BackupReader
{
public:
    explicit BackupReader(const std::wstring& file); // throws with the file and what is wrong
    BackupReader(const BackupReader&) = delete;
    BackupReader& operator=(const BackupReader&) = delete;
    ~BackupReader();

    [[nodiscard]] const std::wstring& DataFolder() const { return m_folder; } // in place of the data root
    [[nodiscard]] std::uint64_t Made() const { return m_made; }               // FILETIME

private:
    std::wstring m_folder;
    std::uint64_t m_made;
};

// For as long as it lives, the library and StoreRoots.h find another data root, in this process alone; the
// program root stays. All of the registry below HKEY_LOCAL_MACHINE is out of sight meanwhile. What the
// library keeps of either store is dropped at both ends.
//
// Callers must: have no more than one, and no call of the library under way on another thread when it is made
// or goes.
class OtherStore
{
public:
    explicit OtherStore(const std::wstring& dataFolder);
    OtherStore(const OtherStore&) = delete;
    OtherStore& operator=(const OtherStore&) = delete;
    ~OtherStore();

private:
    void SetRoots(const std::wstring& dataFolder, const std::wstring& programFolder) const;

    std::wstring m_key; // below HKEY_CURRENT_USER, in place of HKEY_LOCAL_MACHINE
};

} // namespace norvctl
