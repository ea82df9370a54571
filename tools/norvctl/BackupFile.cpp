#include "BackupFile.h"

#include "FileFailure.h"
#include "Progress.h"
#include "StoreFiles.h"
#include "Text.h"

#include <fmt/format.h>
#include <stdexcept>

namespace norvctl
{

namespace
{

// What the disk has taken, and what is read of it, are two things.
void RequireSame(const StoreBackup& read, const StoreBackup& backup)
{
    if (read.store.folders != backup.store.folders || read.store.files != backup.store.files)
    {
        throw std::runtime_error("what has been written is not what was to be written");
    }
}

} // namespace

StoreBackup BackupOf(const std::wstring& root)
{
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    return {std::uint64_t{now.dwHighDateTime} << 32U | now.dwLowDateTime, ReadSnapshot(root)};
}

StoreBackup ReadBackupFile(const std::wstring& file)
{
    const std::wstring path = AnyLengthPath(file);
    const auto read = ReadKeptFile(path);
    if (!read)
    {
        throw FileFailure(path, ERROR_FILE_NOT_FOUND);
    }
    try
    {
        return UnpackBackup(read->bytes);
    }
    catch (const std::runtime_error& error)
    {
        throw std::runtime_error(fmt::format("{}: {}", ToUtf8(file), error.what()));
    }
}

std::size_t WriteBackupFile(const std::wstring& file, const StoreBackup& backup, Existing existing)
{
    const std::wstring path = AnyLengthPath(file);
    Progress progress("pack", backup.store.files.size());
    const std::string bytes =
        PackBackup(backup, [&](std::size_t done, const std::string& name) { progress.Tell(done, name); });
    FileInTheMaking made(PlaceBeside(path));
    made.Write(bytes);
    RequireSame(UnpackBackup(made.ReadBack()), backup);
    if (!made.TryToBecome(path, existing))
    {
        throw FileFailure(path);
    }
    return bytes.size();
}

} // namespace norvctl
