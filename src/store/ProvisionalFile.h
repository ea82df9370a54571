#pragma once

// A file that counts only once the operation that makes it has got through: it is removed when an exception
// leaves the scope, and stays for every exit that is told. Left behind it would be listed as a log device or
// a log name.

#include <windows.h>

#include <cstdio>
#include <exception>
#include <string>

namespace norvepa
{

class ProvisionalFile
{
public:
    // The path must outlive the object: there may be no memory for a copy.
    explicit ProvisionalFile(const std::wstring& path) noexcept : m_path(path) {}
    explicit ProvisionalFile(std::wstring&& path) = delete;
    ProvisionalFile(const ProvisionalFile&) = delete;
    ProvisionalFile& operator=(const ProvisionalFile&) = delete;

    ~ProvisionalFile()
    {
        if (std::uncaught_exceptions() > m_exceptions)
        {
            SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL); // a copy is read-only as its original
            _wremove(m_path.c_str());                                  // which may not be there
        }
    }

private:
    const std::wstring& m_path;
    const int m_exceptions = std::uncaught_exceptions();
};

} // namespace norvepa
