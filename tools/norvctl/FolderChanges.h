#pragma once

// What the system tells of changes in a folder and all below it, whoever makes them.

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace norvctl
{

struct FolderChange
{
    DWORD action;      // FILE_ACTION_ADDED ...
    std::wstring path; // below the folder
};

class FolderChanges
{
public:
    // None when the folder can't be watched, as when it isn't there.
    [[nodiscard]] static std::unique_ptr<FolderChanges> Of(const std::wstring& folder);

    FolderChanges(const FolderChanges&) = delete;
    FolderChanges& operator=(const FolderChanges&) = delete;
    ~FolderChanges();

    [[nodiscard]] HANDLE event() const { return m_event.get(); } // set when there is something to take

    // What has come since the last time; none when there was more than could be kept, so that everything has
    // to be looked at.
    [[nodiscard]] std::optional<std::vector<FolderChange>> Take();

    // False once the folder has gone, another has come in its place, or nothing more will be told.
    [[nodiscard]] bool IsAlive() const;

private:
    struct CloseOwned
    {
        void operator()(void* handle) const { CloseHandle(handle); }
    };
    using Owned = std::unique_ptr<void, CloseOwned>;

    FolderChanges(std::wstring folder, Owned handle, Owned event);
    void Ask();
    [[nodiscard]] std::vector<FolderChange> Told(DWORD bytes) const;

    std::wstring m_folder;
    Owned m_handle;
    Owned m_event;
    OVERLAPPED m_request{};
    std::vector<DWORD> m_buffer; // its entries begin at multiples of 4
    bool m_isAsked = false;
};

} // namespace norvctl
