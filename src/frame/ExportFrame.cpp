#include "frame/ExportFrame.h"

#include <exception>
#include <new>

namespace norvepa
{

Result ExportFrame::Return(Result result) const noexcept
{
    NORV_TRACE(*this, TraceExit, "<< return lRet = %d", result);
    return result;
}

Result ExportFrame::InvalidParameters() const noexcept
{
    NORV_TRACE(*this, TraceExit, "<< return PGSP_ERR_INVALID_PARAMETERS");
    return PGSP_ERR_INVALID_PARAMETERS;
}

Result ExportFrame::Ok() const noexcept
{
    NORV_TRACE(*this, TraceExit, "<< return PGSP_OK");
    return PGSP_OK;
}

Result ExportFrame::BufferTooShort() const noexcept
{
    NORV_TRACE(*this, TraceExit, "<< return PGSP_ERR_BUFFER_TOO_SHORT");
    return PGSP_ERR_BUFFER_TOO_SHORT;
}

Result ExportFrame::FolderNotFound(const char* whichFolder) const noexcept
{
    NORV_TRACE(*this, TraceInfo, "%s", whichFolder);
    return Return(PGSP_ERR_FOLDER_NOT_FOUND);
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

Result ExportFrame::Escaped() const noexcept
{
    try
    {
        throw;
    }
    catch (const std::bad_alloc&)
    {
        NORV_TRACE(*this, TraceWarning, "Error: out of memory");
        return OutOfMemory;
    }
    catch (const std::exception& exception)
    {
        NORV_TRACE(*this, TraceWarning, "Error: exception %s", exception.what());
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    catch (...)
    {
        NORV_TRACE(*this, TraceWarning, "Error: unknown exception");
        return PGSP_ERR_INVALID_PARAMETERS;
    }
}

} // namespace norvepa
