#pragma once

// The frame that all exports share, so that each shows only what it does that the others don't.
//
// Callers may rely on: whatever the body throws, the export returns a code and the caller's process
// goes on. Callers must: trace the entry first, then test the arguments in their order, and leave
// through one of the exits named here or a trace of their own. A function that takes such an exit for several
// exports hands the place of its own call down to it, so that a trace tells the line of the export that left.

#include "frame/CallScope.h"
#include "frame/Result.h"
#include "trace/TraceStatement.h"

#include <new>

namespace norvepa
{

struct ExportFrame
{
    // What NORV_TRACE takes from its source.
    const char* tag;
    const char* component = " BL";

    // The usual exits, each with its trace, which names the place where the exit was taken.
    [[nodiscard]] Result Return(Result result, TracePlace place = TracePlace::current()) const noexcept;
    [[nodiscard]] Result Ok(TracePlace place = TracePlace::current()) const noexcept;
    [[nodiscard]] Result InvalidParameters(TracePlace place = TracePlace::current()) const noexcept;
    [[nodiscard]] Result BufferTooShort(TracePlace place = TracePlace::current()) const noexcept;
    [[nodiscard]] Result FolderNotFound(const char* whichFolder,
                                        TracePlace place = TracePlace::current()) const noexcept;

    // For RunExport alone: the code for the exception in flight.
    [[nodiscard]] Result Escaped(TracePlace place) const noexcept;
};

// Runs an export's body, a callable that takes the frame. `tag` is the export's name, a colon, a blank. What
// escapes from the body is traced at the place of this call.
template <typename Body>
[[nodiscard]] int32_t RunExport(const char* tag, const Body& body,
                                TracePlace place = TracePlace::current()) noexcept
{
    const ExportFrame frame{tag};
    CallScope scope;
    try
    {
        return body(frame);
    }
    catch (...)
    {
        return frame.Escaped(place);
    }
}

// What an export answers that another one calls. Memory that ran out for it ran out for its caller: not one
// of the codes that a caller takes for "not there".
[[nodiscard]] Result AnswerOf(int32_t exportsResult);

// What `body` answers, and OutOfMemory as one of its results instead of an exception: for whoever has
// something to put back then. AnswerOf makes it an exception again.
template <typename Body>
[[nodiscard]] Result ResultOf(const Body& body)
{
    try
    {
        return body();
    }
    catch (const std::bad_alloc&)
    {
        return OutOfMemory;
    }
}

} // namespace norvepa
