#include "StoreCommands.h"

#include "Commands.h"
#include "Example.h"
#include "StoreFiles.h"
#include "StoreRoots.h"
#include "Text.h"

#include <fmt/format.h>
#include <memory>
#include <stdexcept>

namespace norvctl
{

namespace
{

void AddBackup(CLI::App& store, const Report& report)
{
    const auto arguments = std::make_shared<BackupArguments>();
    CLI::App* const backup = store.add_subcommand(
        "backup",
        "put all below the data root into one archive, a cabinet file; it appears whole or not at all");
    backup->add_option("FILE", arguments->file, "the archive")->required();
    backup->add_flag("--force", arguments->force, "replace an archive that is there");
    backup->callback([=, &report] { BackUpStore(report, *arguments); });
    ShowExample(*backup, "norvctl store backup C:\\Sicherung\\Auental.cab");
}

void AddRestore(CLI::App& store, const Report& report)
{
    const auto arguments = std::make_shared<RestoreArguments>();
    CLI::App* const restore = store.add_subcommand(
        "restore",
        "make all below the data root as an archive of backup has it; it is done as a whole or not at "
        "all");
    restore->add_option("FILE", arguments->file, "the archive")->required();
    restore->add_flag("--dry-run", arguments->isDryRun, "only tell what would be added, changed and removed");
    restore->add_flag("--keep-others", arguments->keepsOthers, "leave files that the archive doesn't have");
    restore->add_flag("--yes", arguments->yes, "without asking, also where there are log devices");
    restore->callback([=, &report] { RestoreStore(report, *arguments); });
    ShowExample(*restore, "norvctl store restore C:\\Sicherung\\Auental.cab --dry-run");
    ShowExample(*restore, "norvctl store restore C:\\Sicherung\\Auental.cab --yes");
}

} // namespace

std::wstring DataFolderFor(const std::wstring& archive)
{
    const std::wstring root = PathOf(DataRoot);
    if (root.empty())
    {
        throw std::runtime_error("the data folder cannot be found");
    }
    const std::wstring below = AnyLengthPath(root) + L'\\';
    if (EqualNoCase(AnyLengthPath(archive).substr(0, below.size()), below))
    {
        throw std::runtime_error(
            fmt::format("{}: an archive must not lie in the store itself", ToUtf8(archive)));
    }
    return root;
}

void AddStoreCommands(CLI::App& app, const Report& report)
{
    CLI::App* const store = app.add_subcommand("store", "the store as a whole: keep it in an archive");
    store->require_subcommand(1);
    AddBackup(*store, report);
    AddRestore(*store, report);
}

} // namespace norvctl
