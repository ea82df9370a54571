#pragma once

// A file that somebody has open for reading, and lets others read, but neither write nor delete, for as long
// as the object lives.

#include <windows.h>

#include <string>

namespace norvepa::test
{

class OpenFile
{
public:
    explicit OpenFile(const std::wstring& path); // throws when it can't be opened
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

private:
    HANDLE m_file;
};

} // namespace norvepa::test
