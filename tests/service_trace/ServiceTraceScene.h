#pragma once

// The service's internal operations on a store of this test's own, and the lines that each leaves.

#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "support/DeviceStore.h"
#include "support/TraceLines.h"

#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

class ServiceTraceScene : public testing::Test
{
protected:
    ServiceTraceScene(); // with a log device "Presse"
    ~ServiceTraceScene() override;

    void Trace(); // switches all levels on

    // What an operation has written, in its order: each line as its level and its text. The levels are
    // "entry", "warning", "information" and "exit".
    [[nodiscard]] std::vector<std::string> LinesOf(std::string_view operation) const;

    // All lines as they are.
    [[nodiscard]] std::vector<std::string> Lines() const { return m_lines->read(); }

    StoreRoots roots;
    const DeviceStore store{roots};

private:
    std::optional<TraceLines> m_lines;
};

// The lines of arguments that are refused, and of a folder that can't be found.
inline const std::string Refusal = "exit: << return PGSP_ERR_INVALID_PARAMETERS";
inline const std::string NoDataFolder = "information: Can not get ProgramData Path";
inline const std::string NoProgramFolder = "information: Can not get Corvane OAM path from Program Files";
inline const std::string NotFound = "exit: << return PGSP_ERR_PARAM_NOT_FOUND, the constraint was not found.";

} // namespace norvepa::test
