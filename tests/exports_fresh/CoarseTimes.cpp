#include "CoarseTimes.h"

#include <cstddef>
#include <cstdint>

namespace norvepa::test
{

namespace
{

constexpr std::int64_t Grain = 20'000'000; // in 100 ns

// Of any structure that tells of a file.
template <typename Info>
void Coarsen(Info& info)
{
    info.LastWriteTime.QuadPart -= info.LastWriteTime.QuadPart % Grain;
    info.ChangeTime.QuadPart -= info.ChangeTime.QuadPart % Grain;
}

void CoarsenAll(void* entries)
{
    DWORD offset = 0;
    do
    {
        entries = static_cast<std::byte*>(entries) + offset;
        auto& entry = *static_cast<FILE_FULL_DIR_INFO*>(entries);
        Coarsen(entry);
        offset = entry.NextEntryOffset;
    } while (offset != 0);
}

BOOL WINAPI Tell(HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, void* info, DWORD size)
{
    if (GetFileInformationByHandleEx(file, what, info, size) == FALSE)
    {
        return FALSE;
    }
    if (what == FileBasicInfo)
    {
        Coarsen(*static_cast<FILE_BASIC_INFO*>(info));
    }
    if (what == FileFullDirectoryInfo || what == FileFullDirectoryRestartInfo)
    {
        CoarsenAll(info);
    }
    return TRUE;
}

} // namespace

CoarseTimes::CoarseTimes(HMODULE module) : m_hook("GetFileInformationByHandleEx", Tell, module) {}

} // namespace norvepa::test
