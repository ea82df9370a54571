#include "BackupFile.h"
#include "FileFailure.h"
#include "StoreCommands.h"
#include "StoreFiles.h"
#include "StoreRoots.h"
#include "Text.h"

#include <windows.h>

#include <fmt/format.h>

namespace norvctl
{

namespace
{

// Ahead of the work; whether it is still so is asked again at its end.
void RequireRoomFor(const std::wstring& file)
{
    const std::wstring path = AnyLengthPath(file);
    if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES)
    {
        throw std::runtime_error(fmt::format("{}: it is there already, --force replaces it", ToUtf8(file)));
    }
}

} // namespace

void BackUpStore(const Report& report, const BackupArguments& arguments)
{
    const std::wstring file = ToWide(arguments.file);
    const std::wstring root = DataFolderFor(file);
    if (!arguments.force)
    {
        RequireRoomFor(file);
    }
    if (!IsFolder(root))
    {
        throw FileFailure(root, ERROR_PATH_NOT_FOUND);
    }
    const StoreBackup backup = BackupOf(root);
    const std::size_t size =
        WriteBackupFile(file, backup, arguments.force ? Existing::IsReplaced : Existing::Stays);
    const std::size_t files = backup.store.files.size();
    const std::size_t bytes = backup.store.Bytes();
    report.Answer(
        fmt::format("backed up {} files of {} bytes to {}, of {} bytes", files, bytes, arguments.file, size),
        {{"done", "backed up"}, {"file", arguments.file}, {"files", files}, {"bytes", bytes}});
}

} // namespace norvctl
