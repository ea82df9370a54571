#pragma once

// Registrations, workers and the watch with tracing switched on, and the lines they leave.

#include "norvepa.h"
#include "support/NamedEvent.h"
#include "support/StoreRoots.h"
#include "support/TraceLines.h"
#include "support/Workers.h"

#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <vector>

namespace norvepa::test
{

class NotifyTraceScene : public testing::Test
{
protected:
    NotifyTraceScene();
    ~NotifyTraceScene() override;

    // Begins the trace anew, for the levels of this mask.
    void Trace(const std::wstring& level = AllTraceLevels);

    [[nodiscard]] std::vector<std::string> Lines() const;

    // One change, its worker waited for.
    void Announce(const wchar_t* folderName, const wchar_t* fileName) const;

    StoreRoots roots;
    Workers workers;

private:
    std::optional<TraceLines> m_lines;
};

// As the machine's code page has it.
[[nodiscard]] std::string ToAnsi(const std::wstring& text);

} // namespace norvepa::test
