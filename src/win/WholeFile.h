#pragma once

// A file's bytes, read at once and written at once.
//
// Callers may rely on: whoever reads and writes by these functions never meets the other half-way, in
// whatever process, and neither fails because of the other: both wait for as long as win/Patience.h tells. A
// stranger who has a file open for writing may go on while it is read here; none comes to it meanwhile, nor
// reads it while it is written. What is cut off while it is read comes as zero bytes. What was written lies
// on the disk, not only in the system's memory, when the call comes back. Callers must: expect std::bad_alloc
// for a file that memory can't hold.

#include "win/FileTurn.h"
#include "win/Handle.h"

#include <windows.h>

#include <cstdint>
#include <optional>
#include <shared_mutex>
#include <string>
#include <string_view>

namespace norvepa::win
{

// A file that is open for reading. When it can't be opened the object is empty, and the system's last error
// says why.
class FileToRead
{
public:
    explicit FileToRead(const std::wstring& path);

    explicit operator bool() const noexcept { return static_cast<bool>(m_handle); }
    [[nodiscard]] HANDLE get() const noexcept { return m_handle.get(); }

    // True while somebody has it open for writing: the system may tell only when he closes it that it
    // changed.
    [[nodiscard]] bool isWrittenTo() const noexcept { return m_isWrittenTo; }

private:
    [[nodiscard]] Handle OpenBesideWriters(const wchar_t* path) noexcept;

    std::shared_lock<SharedMutex> m_turn;
    bool m_isWrittenTo = false;
    Handle m_handle; // goes ahead of the turn
};

// So many bytes from the beginning; none where the system refuses.
[[nodiscard]] std::optional<std::string> ReadBytes(HANDLE file, std::int64_t size);

// None when the file can't be opened for reading, or is longer than 2 GB.
[[nodiscard]] std::optional<std::string> ReadWholeFile(const std::wstring& file);

// Puts the bytes in the place of all that the file holds, without emptying it: it is the same file
// afterwards, and a process that ends in the midst of it leaves the old content or the new one, with blanks
// behind it at worst. A file that isn't there is made. False when it can't be opened for writing, or the
// bytes have no room: the file then holds what it held before, and is not there if it wasn't. `blank` is how
// a blank is written in the encoding of the bytes.
[[nodiscard]] bool WriteWholeFile(const std::wstring& file, std::string_view bytes, std::string_view blank);

// True, or false with the system's last error: the destination is then as it was, also when it was there
// already. What it holds, its attributes and its time of writing are those of the source.
[[nodiscard]] bool CopyToNewFile(const std::wstring& source, const std::wstring& destination) noexcept;

} // namespace norvepa::win
