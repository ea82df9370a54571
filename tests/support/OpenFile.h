#pragma once

// A file that somebody has open for reading for as long as the object lives. Unless a test says otherwise
// others may read it meanwhile, but neither write nor delete.

#include <windows.h>

#include <string>

namespace norvepa::test
{

class OpenFile
{
public:
    // Throws when it can't be opened.
    explicit OpenFile(const std::wstring& path, DWORD sharing = FILE_SHARE_READ);
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

private:
    HANDLE m_file;
};

} // namespace norvepa::test
