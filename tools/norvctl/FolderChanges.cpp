#include "FolderChanges.h"

#include <cstddef>
#include <cstring>
#include <utility>

namespace norvctl
{

namespace
{

constexpr std::size_t BufferSize = 60 * 1024; // bytes; a file server takes no more than 64 KB
constexpr DWORD Filter = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME |
                         FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE;

HANDLE OpenFolder(const std::wstring& path, DWORD rights)
{
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const folder = CreateFileW(path.c_str(), rights, sharing, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OVERLAPPED, nullptr);
    return folder == INVALID_HANDLE_VALUE ? nullptr : folder;
}

bool AreSame(HANDLE left, HANDLE right)
{
    BY_HANDLE_FILE_INFORMATION one{};
    BY_HANDLE_FILE_INFORMATION other{};
    return GetFileInformationByHandle(left, &one) != FALSE &&
           GetFileInformationByHandle(right, &other) != FALSE &&
           one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
           one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

} // namespace

std::unique_ptr<FolderChanges> FolderChanges::Of(const std::wstring& folder)
{
    Owned handle(OpenFolder(folder, FILE_LIST_DIRECTORY));
    Owned event(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    if (!handle || !event)
    {
        return nullptr;
    }
    std::unique_ptr<FolderChanges> changes(new FolderChanges(folder, std::move(handle), std::move(event)));
    changes->Ask();
    return changes->m_isAsked ? std::move(changes) : nullptr;
}

FolderChanges::FolderChanges(std::wstring folder, Owned handle, Owned event)
    : m_folder(std::move(folder)),
      m_handle(std::move(handle)),
      m_event(std::move(event)),
      m_buffer(BufferSize / sizeof(DWORD))
{
}

// The system writes into the buffer for as long as a request is under way.
FolderChanges::~FolderChanges()
{
    if (m_isAsked && CancelIoEx(m_handle.get(), &m_request) != FALSE)
    {
        DWORD bytes = 0;
        GetOverlappedResult(m_handle.get(), &m_request, &bytes, TRUE);
    }
}

void FolderChanges::Ask()
{
    m_request = {};
    m_request.hEvent = m_event.get();
    m_isAsked = ReadDirectoryChangesW(m_handle.get(), m_buffer.data(),
                                      static_cast<DWORD>(m_buffer.size() * sizeof(DWORD)), TRUE, Filter,
                                      nullptr, &m_request, nullptr) != FALSE;
    if (!m_isAsked)
    {
        ResetEvent(m_event.get()); // nothing will be told any more, which IsAlive tells
    }
}

std::optional<std::vector<FolderChange>> FolderChanges::Take()
{
    DWORD bytes = 0;
    const bool isTold = GetOverlappedResult(m_handle.get(), &m_request, &bytes, FALSE) != FALSE;
    if (!isTold && GetLastError() == ERROR_IO_INCOMPLETE)
    {
        return std::vector<FolderChange>{};
    }
    std::optional<std::vector<FolderChange>> changes;
    if (isTold && bytes > 0)
    {
        changes = Told(bytes);
    }
    Ask();
    return changes;
}

std::vector<FolderChange> FolderChanges::Told(DWORD bytes) const
{
    std::vector<FolderChange> changes;
    const auto* const begin = reinterpret_cast<const std::byte*>(m_buffer.data());
    for (std::size_t at = 0; at + offsetof(FILE_NOTIFY_INFORMATION, FileName) <= bytes;)
    {
        FILE_NOTIFY_INFORMATION head{};
        std::memcpy(&head, begin + at, offsetof(FILE_NOTIFY_INFORMATION, FileName));
        const auto* const name =
            reinterpret_cast<const wchar_t*>(begin + at + offsetof(FILE_NOTIFY_INFORMATION, FileName));
        changes.push_back({head.Action, {name, head.FileNameLength / sizeof(wchar_t)}});
        if (head.NextEntryOffset == 0)
        {
            break;
        }
        at += head.NextEntryOffset;
    }
    return changes;
}

bool FolderChanges::IsAlive() const
{
    const Owned present(OpenFolder(m_folder, FILE_READ_ATTRIBUTES));
    return m_isAsked && present && AreSame(present.get(), m_handle.get());
}

} // namespace norvctl
