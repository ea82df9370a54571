#pragma once

// The store's trace, switched on and told to a debugger, where it is heard. The registry has to be redirected
// already.

#include "support/DebuggerStrings.h"
#include "support/StoreRoots.h"
#include "support/TraceLines.h"

#include <string>
#include <vector>

namespace norvepa::test
{

class DebuggerTrace
{
public:
    // The levels of this mask, and the store's component word only.
    explicit DebuggerTrace(const std::wstring& level = AllTraceLevels);
    DebuggerTrace(const DebuggerTrace&) = delete;
    DebuggerTrace& operator=(const DebuggerTrace&) = delete;
    ~DebuggerTrace();

    // All lines since then, to be compared with TraceLine().
    [[nodiscard]] std::vector<std::string> lines() const;

private:
    DebuggerStrings m_debugger;
};

// The lines that an operation, a callable, leaves at the levels of this mask.
template <typename Operation>
[[nodiscard]] std::vector<std::string> LinesOf(const Operation& operation,
                                               const std::wstring& level = AllTraceLevels)
{
    const DebuggerTrace trace(level);
    static_cast<void>(operation());
    return trace.lines();
}

} // namespace norvepa::test
