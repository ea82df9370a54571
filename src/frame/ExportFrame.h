#pragma once

// The frame that all exports share, so that each shows only what it does that the others don't.
//
// Callers may rely on: whatever the body throws, the export returns a code and the caller's process
// goes on. Callers must: trace the entry first, then test the arguments in their order, and leave
// through one of the exits named here or a trace of their own.

#include "frame/Result.h"
#include "trace/TraceStatement.h"

namespace norvepa
{

struct ExportFrame
{
    // What NORV_TRACE takes from its source.
    const char* tag;
    const char* component = " BL";

    // The usual exits, each with its trace.
    [[nodiscard]] Result Return(Result result) const noexcept;
    [[nodiscard]] Result Ok() const noexcept;
    [[nodiscard]] Result InvalidParameters() const noexcept;
    [[nodiscard]] Result BufferTooShort() const noexcept;
    [[nodiscard]] Result FolderNotFound(const char* whichFolder) const noexcept;

    // For RunExport alone: the code for the exception in flight.
    [[nodiscard]] Result Escaped() const noexcept;
};

// Runs an export's body, a callable that takes the frame. `tag` is the export's name, a colon, a blank.
template <typename Body>
[[nodiscard]] int32_t RunExport(const char* tag, const Body& body) noexcept
{
    const ExportFrame frame{tag};
    try
    {
        return body(frame);
    }
    catch (...)
    {
        return frame.Escaped();
    }
}

// What an export answers that another one calls. Memory that ran out for it ran out for its caller: not one
// of the codes that a caller takes for "not there".
[[nodiscard]] Result AnswerOf(int32_t exportsResult);

} // namespace norvepa
