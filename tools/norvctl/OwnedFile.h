#pragma once

// An open file that is closed with its owner, and one in the making, which nobody meets half-made.

#include "StoreSnapshot.h"

#include <windows.h>

#include <memory>
#include <string>
#include <string_view>

namespace norvctl
{

struct CloseFile
{
    using pointer = HANDLE;
    void operator()(HANDLE file) const { CloseHandle(file); }
};
using OwnedFile = std::unique_ptr<HANDLE, CloseFile>;

struct FileAccess
{
    DWORD rights;
    DWORD sharing;
    DWORD creation;
};

// Null, with the reason in the system's last error, when it can't be opened.
[[nodiscard]] OwnedFile OpenFile(const std::wstring& path, const FileAccess& access);

enum class Existing : BOOLEAN
{
    Stays,
    IsReplaced
};

// It is gone, also when the process ends by whatever, unless it has become another. What fails is thrown.
class FileInTheMaking
{
public:
    explicit FileInTheMaking(const std::wstring& path); // absolute
    void Write(std::string_view bytes);                 // behind what has been written; to the disk
    [[nodiscard]] std::string ReadBack() const;

    void SetAs(const KeptFile& file); // attributes and write time; behind all writing

    // Takes the other place by one renaming. False, with the reason in the system's last error, when it
    // can't; it may be tried again then. Once it has succeeded nothing may follow.
    [[nodiscard]] bool TryToBecome(const std::wstring& path, Existing existing);

private:
    [[nodiscard]] bool SetToGo(BOOLEAN goes) const;
    [[nodiscard]] bool SetInformation(std::uint32_t attributes, std::uint64_t writeTime) const;
    [[nodiscard]] bool Rename(const std::wstring& path, Existing existing) const;

    std::wstring m_path;
    OwnedFile m_file;
    std::uint32_t m_attributes = 0;
};

} // namespace norvctl
