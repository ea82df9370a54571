#include "support/OpenFile.h"

#include "support/TemporaryFolder.h"

#include <stdexcept>

namespace norvepa::test
{

OpenFile::OpenFile(const std::wstring& path, DWORD sharing)
    : m_file(CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                         nullptr))
{
    if (m_file == INVALID_HANDLE_VALUE)
    {
        throw std::runtime_error("cannot open " + ToUtf8(path));
    }
}

OpenFile::~OpenFile()
{
    CloseHandle(m_file);
}

} // namespace norvepa::test
