#pragma once

// Trace lines as they end up in files, seen from outside of the trace client: settings go into the
// redirected registry, and the library reads them when it is loaded.

#include "support/TemporaryFolder.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

class TraceLines
{
public:
    // Switches the levels of this mask on, with output to files. The registry has to be redirected already.
    explicit TraceLines(const std::wstring& level, const std::wstring& format = L"TEXT");

    // All lines written so far, without their line feeds; none when there is no file.
    [[nodiscard]] std::vector<std::string> read() const;

private:
    TemporaryFolder m_folder;
};

inline const std::wstring AllTraceLevels = L"0xFFFFFFFF";

// Of lines of the format "SHORT" those with this tag, each as its level and its text: "exit: << return lRet =
// 0 ". The levels are "entry", "warning", "information" and "exit".
[[nodiscard]] std::vector<std::string> LinesTagged(const std::vector<std::string>& lines,
                                                   std::string_view tag);

// The same for the lines of several tags, in the order in which all were written.
[[nodiscard]] std::vector<std::string> LinesTaggedAnyOf(const std::vector<std::string>& lines,
                                                        std::initializer_list<std::string_view> tags);

// A line of the format "TEXT": tag and message, a blank behind each. Tags end in a blank of their own.
[[nodiscard]] std::string TraceLine(std::string_view tag, std::string_view message);

} // namespace norvepa::test
