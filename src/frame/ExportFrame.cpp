#include "frame/ExportFrame.h"

#include <exception>
#include <new>

namespace norvepa
{

Result ExportFrame::Return(Result result, TracePlace place) const noexcept
{
    NORV_TRACE_AT(place, *this, TraceExit, "<< return lRet = %d", result);
    return result;
}

Result ExportFrame::InvalidParameters(TracePlace place) const noexcept
{
    NORV_TRACE_AT(place, *this, TraceExit, "<< return PGSP_ERR_INVALID_PARAMETERS");
    return PGSP_ERR_INVALID_PARAMETERS;
}

Result ExportFrame::Ok(TracePlace place) const noexcept
{
    NORV_TRACE_AT(place, *this, TraceExit, "<< return PGSP_OK");
    return PGSP_OK;
}

Result ExportFrame::BufferTooShort(TracePlace place) const noexcept
{
    NORV_TRACE_AT(place, *this, TraceExit, "<< return PGSP_ERR_BUFFER_TOO_SHORT");
    return PGSP_ERR_BUFFER_TOO_SHORT;
}

Result ExportFrame::FolderNotFound(const char* whichFolder, TracePlace place) const noexcept
{
    NORV_TRACE_AT(place, *this, TraceInfo, "%s", whichFolder);
    return Return(PGSP_ERR_FOLDER_NOT_FOUND, place);
}

Result AnswerOf(int32_t exportsResult)
{
    const Result result{exportsResult};
    if (result == OutOfMemory)
    {
        throw std::bad_alloc();
    }
    return result;
}

Result ExportFrame::Escaped(TracePlace place) const noexcept
{
    try
    {
        throw;
    }
    catch (const std::bad_alloc&)
    {
        NORV_TRACE_AT(place, *this, TraceWarning, "Error: out of memory");
        return OutOfMemory;
    }
    catch (const std::exception& exception)
    {
        NORV_TRACE_AT(place, *this, TraceWarning, "Error: exception %s", exception.what());
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    catch (...)
    {
        NORV_TRACE_AT(place, *this, TraceWarning, "Error: unknown exception");
        return PGSP_ERR_INVALID_PARAMETERS;
    }
}

} // namespace norvepa
