#pragma once

#include "norvctl/BackupFile.h"
#include "norvctl/StoreArchive.h"
#include "norvepa.h"
#include "support/Norvctl.h"

#include <filesystem>
#include <map>
#include <string>

namespace norvepa::test
{

// What lies in a folder: a folder as such, a file with its write time and bytes.
using Tree = std::map<std::wstring, std::string>;

inline Tree TreeOf(const std::wstring& root)
{
    Tree tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
    {
        const std::wstring path = entry.path().wstring();
        tree[path.substr(root.size())] =
            entry.is_directory()
                ? "folder"
                : std::to_string(entry.last_write_time().time_since_epoch().count()) + ' ' + ReadBytes(path);
    }
    return tree;
}

class NorvctlStore : public Norvctl
{
protected:
    // What the library keeps of the test ahead goes: the machine has never named another store for it.
    NorvctlStore() { const norvctl::OtherStore other(Root()); }

    // Folders that the library watches don't go.
    ~NorvctlStore() override { NorvepaBl64x_deinit(); }

    [[nodiscard]] std::wstring Root() const { return folder / L"data-root"; }
    [[nodiscard]] std::wstring Archive() const { return folder / L"Sicherung \u00FC.cab"; }
    [[nodiscard]] std::wstring Rescue() const { return Root() + L".before-restore.cab"; }
    [[nodiscard]] Tree StoreTree() const { return TreeOf(Root()); }

    [[nodiscard]] ProgramEnd BackUp() const { return RunNorvctl({L"store", L"backup", Archive()}); }

    // What it makes, for tests of something else.
    void MakeArchive() const
    {
        norvctl::WriteBackupFile(Archive(), norvctl::BackupOf(Root()), norvctl::Existing::Stays);
    }

    [[nodiscard]] ProgramEnd Restore() const
    {
        return RunNorvctl({L"store", L"restore", Archive(), L"--yes"});
    }

    // One file added, one changed, one removed.
    void ChangeStore() const
    {
        WriteBytes(LogDevicePath(L"Neu"), "<neu/>");
        WriteBytes(LogDevicePath(L"Labor"), "<anders/>");
        std::filesystem::remove(LogNamePath(L"Halle 2#3a Pumpe"));
    }
};

} // namespace norvepa::test
