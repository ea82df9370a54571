#include "win/FileCalls.h"

#include "support/SystemFunction.h"

#include <algorithm>
#include <utility>

namespace norvepa::test
{

namespace
{

FileCalls* calls = nullptr;

BOOL WINAPI Write(HANDLE file, const void* bytes, DWORD size, DWORD* written, OVERLAPPED* place)
{
    static auto* const write = SystemFunction<decltype(WriteFile)>("WriteFile");
    calls->told.push_back("write " + std::to_string(size));
    calls->beforeWrite();
    if (std::exchange(calls->nextWriteFails, false))
    {
        SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    const auto room = std::exchange(calls->roomForNextWrite, std::nullopt);
    return write(file, bytes, std::min(size, room.value_or(size)), written, place);
}

BOOL WINAPI Change(HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, void* information, DWORD size)
{
    static auto* const change =
        SystemFunction<decltype(SetFileInformationByHandle)>("SetFileInformationByHandle");
    if (what == FileEndOfFileInfo)
    {
        const auto* const end = static_cast<const FILE_END_OF_FILE_INFO*>(information);
        calls->told.push_back("cut " + std::to_string(end->EndOfFile.QuadPart));
        calls->beforeCut();
        if (calls->cutsFail)
        {
            SetLastError(ERROR_USER_MAPPED_FILE);
            return FALSE;
        }
    }
    if (what == FileRenameInfo)
    {
        calls->told.emplace_back("move");
        calls->beforeMove();
    }
    return change(file, what, information, size);
}

BOOL WINAPI Flush(HANDLE file)
{
    static auto* const flush = SystemFunction<decltype(FlushFileBuffers)>("FlushFileBuffers");
    calls->told.emplace_back("flush");
    const auto deed = calls->beforeFlush; // which may set another
    deed(file);
    return flush(file);
}

} // namespace

FileCalls::FileCalls()
    : m_write("WriteFile", Write),
      m_change("SetFileInformationByHandle", Change),
      m_flush("FlushFileBuffers", Flush)
{
    calls = this;
}

FileCalls::~FileCalls()
{
    calls = nullptr;
}

} // namespace norvepa::test
