#pragma once

// A file that somebody writes for as long as the object lives. Others may read it meanwhile, if they let him
// write.

#include "support/TemporaryFolder.h"

#include <windows.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace norvepa::test
{

class FileWriter
{
public:
    // Throws when it can't be opened; so do the others when the system refuses.
    explicit FileWriter(const std::wstring& path)
        : m_file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        if (m_file == INVALID_HANDLE_VALUE)
        {
            throw std::runtime_error("cannot write " + ToUtf8(path));
        }
    }
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    ~FileWriter() { CloseHandle(m_file); }

    // Over what stands there, from the beginning on.
    void Write(std::string_view bytes) const
    {
        DWORD written = 0;
        if (!::WriteFile(m_file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
        {
            throw std::runtime_error("cannot write");
        }
    }

    void SetLength(std::int64_t length) const // in bytes; nothing is written for what is added
    {
        LARGE_INTEGER end;
        end.QuadPart = length;
        if (!SetFilePointerEx(m_file, end, nullptr, FILE_BEGIN) || !SetEndOfFile(m_file))
        {
            throw std::runtime_error("cannot set a file's length");
        }
    }

private:
    HANDLE m_file;
};

} // namespace norvepa::test
