#include "BackupFile.h"
#include "StoreArchive.h"
#include "StoreFiles.h"

#include <windows.h>

#include <filesystem>
#include <fmt/format.h>
#include <fmt/xchar.h>

namespace norvctl
{

namespace
{

std::wstring FreshFolder()
{
    static int count = 0;
    return fmt::format(L"{}norvctl-{}-{}", std::filesystem::temp_directory_path().wstring(),
                       GetCurrentProcessId(), ++count);
}

void RemoveAll(const std::wstring& folder) noexcept
{
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

void LayOut(const StoreSnapshot& store, const std::wstring& folder)
{
    std::filesystem::create_directories(folder);
    const std::wstring root = AnyLengthPath(folder);
    for (const auto& [name, attributes] : store.folders)
    {
        MakeFolder(PathBelow(root, name), 0);
    }
    for (const auto& [name, file] : store.files)
    {
        PutFile(PathBelow(root, name), {0, file.writeTime, file.bytes});
    }
}

} // namespace

BackupReader::BackupReader(const std::wstring& file) : m_folder(FreshFolder())
{
    const StoreBackup backup = ReadBackupFile(file);
    m_made = backup.made;
    RemoveAll(m_folder); // of a process of the same number that has been ended
    try
    {
        LayOut(backup.store, m_folder);
    }
    catch (...)
    {
        RemoveAll(m_folder);
        throw;
    }
}

BackupReader::~BackupReader()
{
    RemoveAll(m_folder);
}

} // namespace norvctl
