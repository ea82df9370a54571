#pragma once

// A file in the making, which nobody meets half-made.
//
// Callers must: Keep() it, or nothing of it stays. The path has to outlive the object.

#include "win/Handle.h"

#include <windows.h>

#include <array>
#include <string>
#include <string_view>

namespace norvepa::win
{

class NewFile
{
public:
    // Made beside its place, under a name that no listing of documents shows, and put there whole by Keep():
    // also when the process ends in the midst of it, the file is there whole or not at all. What such an end
    // may leave beside it goes with the next file of its name. Where something is already, the object is
    // empty. An empty object leaves the reason in the system's last error.
    [[nodiscard]] static NewFile CreateBeside(const std::wstring& path) noexcept;
    static NewFile CreateBeside(std::wstring&& path) = delete;

    // In its place at once, of which nobody else opens it until Keep(); what was there is empty then.
    [[nodiscard]] static NewFile CreateOrEmpty(const std::wstring& path) noexcept;
    static NewFile CreateOrEmpty(std::wstring&& path) = delete;

    explicit operator bool() const noexcept { return static_cast<bool>(m_handle); }

    // Behind what has been written. False when not all of it has room.
    [[nodiscard]] bool Write(std::string_view bytes) const noexcept;
    void Empty() const noexcept;

    // Comes back when all of it lies on the disk. Once; nothing but the end may follow. False, with the
    // reason in the system's last error, when another file has been faster to take the place.
    [[nodiscard]] bool Keep() noexcept;

    // The same, with the attributes and the time of writing of another file.
    [[nodiscard]] bool KeepAs(const FILE_BASIC_INFO& other) noexcept;

private:
    // Where a file is made that isn't made in its place. There is no memory for it where memory has run out.
    using Beside = std::array<wchar_t, MAX_PATH>;

    explicit NewFile(const wchar_t* path) noexcept : m_path(path) {}

    [[nodiscard]] bool FindPlaceBeside(std::wstring_view path) noexcept;
    void Take(Handle opened) noexcept;
    [[nodiscard]] bool PutInItsPlace() noexcept;
    [[nodiscard]] bool MoveToItsPlace() noexcept;
    void LetOthersInAndFlush() noexcept;

    const wchar_t* m_path;
    Handle m_handle;
    Beside m_beside{}; // empty for a file that is made in its place
};

} // namespace norvepa::win
