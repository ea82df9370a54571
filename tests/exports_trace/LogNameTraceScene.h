#pragma once

// Exports called on a store of this test's own with tracing switched on, and the lines that each leaves.

#include "support/LoadedLibrary.h"
#include "support/StoreRoots.h"
#include "support/TraceLines.h"
#include "support/Workers.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

class LogNameTraceScene : public testing::Test
{
protected:
    LogNameTraceScene(); // a log name "Pumpe", with the schemas that its changes are tested by
    ~LogNameTraceScene() override;

    void TakeDataFolderAway() const;

    // Loads the library with all levels on. The store has to be as the test wants it.
    void Load();
    [[nodiscard]] const Exports& library() const { return *m_library; }

    // What an operation has written, in its order: each line as its level and its text. The levels are
    // "entry", "warning", "information" and "exit".
    [[nodiscard]] std::vector<std::string> LinesOf(std::string_view operation) const;

    // The same for a tag that isn't an operation's name, a colon and a blank.
    [[nodiscard]] std::vector<std::string> LinesTagged(std::string_view tag) const;
    [[nodiscard]] std::vector<std::string> LinesTaggedAnyOf(
        std::initializer_list<std::string_view> tags) const; // in the order of all

    StoreRoots roots;

private:
    std::optional<TraceLines> m_lines;
    std::optional<Exports> m_library;
    std::optional<Workers> m_workers;
};

// As the machine's code page has it.
[[nodiscard]] std::string ToAnsi(const std::wstring& text);

// The lines of arguments that are refused, and of a data folder that can't be found.
inline const std::string NoFolder = "information: Can not get ProgramData Path";
inline const std::string Refusal = "exit: << return PGSP_ERR_INVALID_PARAMETERS";

} // namespace norvepa::test
