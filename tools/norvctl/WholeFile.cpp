#include "WholeFile.h"

#include "FileFailure.h"

#include <windows.h>

#include <algorithm>
#include <memory>

namespace norvctl
{

namespace
{

struct CloseHandleOf
{
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using File = std::unique_ptr<HANDLE, CloseHandleOf>;

// A new file beside another, gone with the object unless it has taken the other's place.
class FileBeside
{
public:
    explicit FileBeside(const std::wstring& path)
        : m_target(path),
          m_path(path + L".new"),
          m_file(CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                             nullptr))
    {
        if (m_file.get() == INVALID_HANDLE_VALUE)
        {
            const DWORD error = GetLastError();
            static_cast<void>(m_file.release());
            throw FileFailure(path, error);
        }
    }

    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    ~FileBeside()
    {
        if (m_file != nullptr || !m_isInPlace)
        {
            m_file.reset();
            DeleteFileW(m_path.c_str());
        }
    }

    void Write(std::string_view bytes)
    {
        constexpr std::size_t Most = 1U << 30U; // what one call is given
        while (!bytes.empty())
        {
            DWORD written = 0;
            const auto count = static_cast<DWORD>(std::min(bytes.size(), Most));
            if (WriteFile(m_file.get(), bytes.data(), count, &written, nullptr) == 0)
            {
                throw FileFailure(m_target);
            }
            bytes.remove_prefix(written);
        }
    }

    void TakePlace()
    {
        const bool isOnDisk = FlushFileBuffers(m_file.get()) != 0;
        const DWORD error = GetLastError();
        m_file.reset();
        if (!isOnDisk)
        {
            throw FileFailure(m_target, error);
        }
        if (MoveFileExW(m_path.c_str(), m_target.c_str(), MOVEFILE_REPLACE_EXISTING) == 0)
        {
            throw FileFailure(m_target);
        }
        m_isInPlace = true;
    }

private:
    std::wstring m_target;
    std::wstring m_path;
    File m_file;
    bool m_isInPlace = false;
};

} // namespace

void SaveWholeFile(const std::wstring& path, std::string_view bytes)
{
    FileBeside file(path);
    file.Write(bytes);
    file.TakePlace();
}

} // namespace norvctl
