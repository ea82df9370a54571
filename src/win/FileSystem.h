#pragma once

// The system's search and change-notification handles, owned.

#include <windows.h>

#include <string>
#include <utility>

namespace norvepa::win
{

// Tells, when waited for, that a file of a folder was made, removed or given another name. Contents and
// folders below it don't count.
class ChangeNotification
{
public:
    ChangeNotification() noexcept = default;
    explicit ChangeNotification(const std::wstring& folder) noexcept
        : m_handle(FindFirstChangeNotificationW(folder.c_str(), FALSE, FILE_NOTIFY_CHANGE_FILE_NAME))
    {
    }
    ChangeNotification(ChangeNotification&& other) noexcept
        : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE))
    {
    }
    ChangeNotification& operator=(ChangeNotification&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ChangeNotification(const ChangeNotification&) = delete;
    ChangeNotification& operator=(const ChangeNotification&) = delete;
    ~ChangeNotification()
    {
        if (m_handle != INVALID_HANDLE_VALUE)
        {
            FindCloseChangeNotification(m_handle);
        }
    }

    explicit operator bool() const noexcept { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const noexcept { return m_handle; }

    // Ready for the next change, once one has been told.
    [[nodiscard]] bool Rearm() const noexcept { return FindNextChangeNotification(m_handle) != FALSE; }

private:
    HANDLE m_handle = INVALID_HANDLE_VALUE;
};

// A walk over the files that a pattern matches, in the folder's order. Empty when nothing matches or the
// folder can't be read.
class FileSearch
{
public:
    explicit FileSearch(const std::wstring& pattern) noexcept
        : m_handle(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &m_found, FindExSearchNameMatch,
                                    nullptr, FIND_FIRST_EX_LARGE_FETCH))
    {
    }
    FileSearch(const FileSearch&) = delete;
    FileSearch& operator=(const FileSearch&) = delete;
    ~FileSearch()
    {
        if (m_handle != INVALID_HANDLE_VALUE)
        {
            FindClose(m_handle);
        }
    }

    explicit operator bool() const noexcept { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const wchar_t* name() const noexcept { return m_found.cFileName; }
    [[nodiscard]] bool Next() noexcept { return FindNextFileW(m_handle, &m_found) != FALSE; }

private:
    WIN32_FIND_DATAW m_found = {};
    HANDLE m_handle;
};

} // namespace norvepa::win
