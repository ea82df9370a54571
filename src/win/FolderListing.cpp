#include "win/FolderListing.h"

#include "win/Handle.h"

#include <array>
#include <cstddef>
#include <memory>

namespace norvepa::win
{

namespace
{

constexpr std::size_t PieceBytes = 64 * 1024; // what a file server hands out at once, too

// The entry behind one; null behind the last of a piece.
const FILE_FULL_DIR_INFO* Next(const FILE_FULL_DIR_INFO* entry) noexcept
{
    if (entry->NextEntryOffset == 0)
    {
        return nullptr;
    }
    return reinterpret_cast<const FILE_FULL_DIR_INFO*>(reinterpret_cast<const std::byte*>(entry) +
                                                       entry->NextEntryOffset);
}

std::wstring_view NameOf(const FILE_FULL_DIR_INFO& entry) noexcept
{
    return {entry.FileName, entry.FileNameLength / sizeof(wchar_t)};
}

} // namespace

std::optional<FolderListing> FolderListing::Of(const std::wstring& folder)
{
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle handle(CreateFileW(folder.c_str(), FILE_LIST_DIRECTORY, everybody, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!handle)
    {
        return std::nullopt;
    }

    FolderListing listing;
    struct alignas(FILE_FULL_DIR_INFO) Piece
    {
        std::array<std::byte, PieceBytes> bytes;
    };
    const auto piece = std::make_unique<Piece>();
    while (GetFileInformationByHandleEx(handle.get(), FileFullDirectoryInfo, piece->bytes.data(), PieceBytes))
    {
        for (const auto* entry = reinterpret_cast<const FILE_FULL_DIR_INFO*>(piece->bytes.data());
             entry != nullptr; entry = Next(entry))
        {
            listing.m_files.try_emplace(std::wstring(NameOf(*entry)), entry->EndOfFile, entry->LastWriteTime,
                                        entry->ChangeTime);
        }
    }
    if (GetLastError() != ERROR_NO_MORE_FILES)
    {
        return std::nullopt;
    }
    return listing;
}

const FileStamp* FolderListing::Find(std::wstring_view fileName) const
{
    const auto found = m_files.find(fileName);
    return found == m_files.end() ? nullptr : &found->second;
}

} // namespace norvepa::win
