#include "service/AccessTest.h"

#include <io.h>

#include <cerrno>

namespace norvepa
{

namespace
{

Result ResultOfAccess(errno_t error)
{
    switch (error)
    {
    case 0:
        return PGSP_OK;
    case ENOENT:
        return PGSP_ERR_FILE_NOT_FOUND;
    case EACCES:
        return PGSP_ERR_ACCESS_DENIED;
    default:
        return PGSP_ERR_INVALID_PARAMETERS;
    }
}

} // namespace

bool IsAccessMode(std::int32_t flag) noexcept
{
    return flag == 0 || flag == 2 || flag == 4 || flag == 6;
}

Result TestAccess(const ExportFrame& frame, const std::wstring& file, std::int32_t flag, TracePlace place)
{
    const errno_t error = _waccess_s(file.c_str(), flag);
    NORV_TRACE_AT(place, frame, TraceExit, "<< errno_t err = %d", error);
    return ResultOfAccess(error);
}

} // namespace norvepa
