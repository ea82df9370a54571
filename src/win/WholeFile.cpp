#include "win/WholeFile.h"

#include "win/NewFile.h"
#include "win/OpenWhenFree.h"

#include <algorithm>
#include <array>
#include <limits>
#include <mutex>

namespace norvepa::win
{

namespace
{

// Nobody may remove the file: who then makes another in its place would fail.
constexpr FileUse Reading{GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING};
constexpr FileUse ReadingBesideWriters{GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING};

// Reading keeps out who reads, and who writes as we do. That others may write lets the flush have its own.
constexpr FileUse Writing{GENERIC_READ | GENERIC_WRITE, FILE_SHARE_WRITE, OPEN_EXISTING};

constexpr FileUse Flushing{GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING};

bool WriteFromBegin(const Handle& file, std::string_view bytes) noexcept
{
    OVERLAPPED begin{};
    DWORD written = 0;
    return WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, &begin) &&
           written == bytes.size();
}

void Cut(const Handle& file, std::size_t size) noexcept
{
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
    SetFileInformationByHandle(file.get(), FileEndOfFileInfo, &end, sizeof end);
}

// As many bytes as make a text of `size` as long as it was, of whole blanks.
std::string Padded(std::string_view bytes, std::size_t size, std::string_view blank)
{
    std::string padded(bytes);
    padded.reserve(std::max(size, bytes.size()));
    while (padded.size() + blank.size() <= size)
    {
        padded += blank;
    }
    return padded;
}

// A disk that is full takes only a part: the old content has its room there.
bool Replace(const Handle& file, std::string_view bytes, std::string_view blank)
{
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size))
    {
        return false;
    }
    const auto before = ReadBytes(file.get(), size.QuadPart);
    if (!before)
    {
        return false;
    }
    const bool written = bytes.size() >= before->size()
                             ? WriteFromBegin(file, bytes)
                             : WriteFromBegin(file, Padded(bytes, before->size(), blank));
    if (!written)
    {
        static_cast<void>(WriteFromBegin(file, *before));
    }
    Cut(file, written ? bytes.size() : before->size());
    return written;
}

// None when the file can't be opened for writing.
std::optional<bool> WriteKnownFile(const std::wstring& path, std::string_view bytes, std::string_view blank)
{
    Handle shared;
    bool written = false;
    {
        const std::lock_guard turn(TurnAt(NumberOfFile(path)));
        const Handle alone = OpenWhenFree(path.c_str(), Writing);
        if (!alone)
        {
            return std::nullopt;
        }
        written = Replace(alone, bytes, blank);
        shared = Open(path.c_str(), Flushing);
    }
    // A disk may take longer than anybody waits for a file in use: others have been let in ahead of it.
    FlushFileBuffers(shared.get());
    return written;
}

bool MakeWholeFile(const std::wstring& path, std::string_view bytes) noexcept
{
    NewFile made = NewFile::CreateBeside(path);
    return made && made.Write(bytes) && made.Keep();
}

// The source is let go of ahead of the flush of the copy.
bool CopyInto(const NewFile& copy, const std::wstring& path, FILE_BASIC_INFO& information) noexcept
{
    constexpr std::size_t PieceBytes = 16 * 1024; // on the stack: a copy must not fail for want of memory

    const FileToRead source(path);
    if (!source ||
        !GetFileInformationByHandleEx(source.get(), FileBasicInfo, &information, sizeof information))
    {
        return false;
    }
    std::array<char, PieceBytes> piece;
    DWORD read = 0;
    do
    {
        if (!ReadFile(source.get(), piece.data(), PieceBytes, &read, nullptr) ||
            !copy.Write({piece.data(), read}))
        {
            return false;
        }
    } while (read != 0);
    return true;
}

} // namespace

FileToRead::FileToRead(const std::wstring& path) : m_turn(TurnAt(NumberOfFile(path)))
{
    m_handle = WhenFree<ReadersPatience>(NumberOfFile(path), {ERROR_SHARING_VIOLATION},
                                         [&] { return OpenBesideWriters(path.c_str()); });
}

Handle FileToRead::OpenBesideWriters(const wchar_t* path) noexcept
{
    Handle opened = Open(path, Reading);
    m_isWrittenTo = !opened && GetLastError() == ERROR_SHARING_VIOLATION;
    return m_isWrittenTo ? Open(path, ReadingBesideWriters) : std::move(opened);
}

std::optional<std::string> ReadBytes(HANDLE file, std::int64_t size)
{
    if (size > std::numeric_limits<std::int32_t>::max())
    {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    OVERLAPPED begin{};
    DWORD read = 0;
    const BOOL done = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, &begin);
    if (!done && GetLastError() != ERROR_HANDLE_EOF)
    {
        return std::nullopt;
    }
    return bytes;
}

std::optional<std::string> ReadWholeFile(const std::wstring& file)
{
    const FileToRead opened(file);
    LARGE_INTEGER size;
    if (!opened || !GetFileSizeEx(opened.get(), &size))
    {
        return std::nullopt;
    }
    return ReadBytes(opened.get(), size.QuadPart);
}

bool WriteWholeFile(const std::wstring& file, std::string_view bytes, std::string_view blank)
{
    // Others may make it or take it away at the same time, but not for ever.
    for (int tries = 0; tries < 3; ++tries)
    {
        if (const auto written = WriteKnownFile(file, bytes, blank))
        {
            return *written;
        }
        if (GetLastError() != ERROR_FILE_NOT_FOUND)
        {
            return false;
        }
        if (MakeWholeFile(file, bytes))
        {
            return true;
        }
        if (GetLastError() != ERROR_FILE_EXISTS) // which another has been faster to make
        {
            return false;
        }
    }
    return false;
}

bool CopyToNewFile(const std::wstring& source, const std::wstring& destination) noexcept
{
    if (GetFileAttributesW(source.c_str()) == INVALID_FILE_ATTRIBUTES)
    {
        return false; // ahead of anything that a watch of the folder would tell of
    }
    FILE_BASIC_INFO information;
    NewFile made = NewFile::CreateBeside(destination);
    return made && CopyInto(made, source, information) && made.KeepAs(information);
}

} // namespace norvepa::win
