#include "OwnedFile.h"

#include "FileFailure.h"

#include <cstddef>
#include <cstring>
#include <new>
#include <vector>

namespace norvctl
{

namespace
{

constexpr std::size_t Piece = 1U << 24U; // bytes that are read or written at once

} // namespace

OwnedFile OpenFile(const std::wstring& path, const FileAccess& access)
{
    const HANDLE file = CreateFileW(path.c_str(), access.rights, access.sharing, nullptr, access.creation,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    return OwnedFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

FileInTheMaking::FileInTheMaking(const std::wstring& path)
    : m_path(path), m_file(OpenFile(path, {GENERIC_READ | GENERIC_WRITE | DELETE, 0, CREATE_ALWAYS}))
{
    if (!m_file || !SetToGo(TRUE))
    {
        throw FileFailure(path);
    }
}

// A file that is to go goes when its handle is closed.
bool FileInTheMaking::SetToGo(BOOLEAN goes) const
{
    FILE_DISPOSITION_INFO disposition{goes};
    return SetFileInformationByHandle(m_file.get(), FileDispositionInfo, &disposition, sizeof disposition) !=
           FALSE;
}

// A time of 0 stays as it is.
bool FileInTheMaking::SetInformation(std::uint32_t attributes, std::uint64_t writeTime) const
{
    FILE_BASIC_INFO information{};
    information.LastWriteTime.QuadPart = static_cast<LONGLONG>(writeTime);
    information.FileAttributes = attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
    return SetFileInformationByHandle(m_file.get(), FileBasicInfo, &information, sizeof information) != FALSE;
}

void FileInTheMaking::Write(std::string_view bytes)
{
    while (!bytes.empty())
    {
        const std::string_view piece = bytes.substr(0, Piece);
        DWORD written = 0;
        if (!WriteFile(m_file.get(), piece.data(), static_cast<DWORD>(piece.size()), &written, nullptr))
        {
            throw FileFailure(m_path);
        }
        if (written != piece.size())
        {
            throw FileFailure(m_path, ERROR_DISK_FULL);
        }
        bytes.remove_prefix(piece.size());
    }
    if (!FlushFileBuffers(m_file.get()))
    {
        throw FileFailure(m_path);
    }
}

std::string FileInTheMaking::ReadBack() const
{
    std::string bytes;
    std::string piece(Piece, '\0');
    SetFilePointer(m_file.get(), 0, nullptr, FILE_BEGIN);
    for (;;)
    {
        DWORD read = 0;
        if (!ReadFile(m_file.get(), piece.data(), static_cast<DWORD>(piece.size()), &read, nullptr))
        {
            throw FileFailure(m_path);
        }
        if (read == 0)
        {
            return bytes;
        }
        bytes.append(piece, 0, read);
    }
}

void FileInTheMaking::SetAs(const KeptFile& file)
{
    m_attributes = file.attributes;
    if (!SetInformation(m_attributes & ~std::uint32_t{FILE_ATTRIBUTE_READONLY}, file.writeTime))
    {
        throw FileFailure(m_path);
    }
}

// What is read-only can't be set to go: it becomes that last.
bool FileInTheMaking::TryToBecome(const std::wstring& path, Existing existing)
{
    const bool isReadOnly = (m_attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (SetToGo(FALSE) && (!isReadOnly || SetInformation(m_attributes, 0)) && Rename(path, existing))
    {
        return true;
    }
    const DWORD error = GetLastError();
    const bool goes =
        SetInformation(m_attributes & ~std::uint32_t{FILE_ATTRIBUTE_READONLY}, 0) && SetToGo(TRUE);
    SetLastError(goes ? error : DWORD{ERROR_WRITE_FAULT});
    return false;
}

bool FileInTheMaking::Rename(const std::wstring& path, Existing existing) const
{
    const std::size_t nameSize = path.size() * sizeof(wchar_t);
    std::vector<std::byte> buffer(sizeof(FILE_RENAME_INFO) + nameSize); // which has room for a terminator
    auto* const information = new (buffer.data()) FILE_RENAME_INFO{};
    information->ReplaceIfExists = static_cast<BOOLEAN>(existing);
    information->FileNameLength = static_cast<DWORD>(nameSize);
    std::memcpy(information->FileName, path.data(), nameSize);
    return SetFileInformationByHandle(m_file.get(), FileRenameInfo, information,
                                      static_cast<DWORD>(buffer.size())) != FALSE;
}

} // namespace norvctl
