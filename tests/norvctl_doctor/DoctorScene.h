#pragma once

// A sample store with nothing wrong in it, for a test to damage in one way.

#include "support/Norvctl.h"
#include "support/SampleChange.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

namespace norvepa::test
{

inline void RemoveAll(const std::wstring& path)
{
    if (std::filesystem::remove_all(path) == 0)
    {
        throw std::runtime_error("the sample store does not have " + ToUtf8(path));
    }
}

inline nlohmann::json Finding(const char* severity, const char* kind, const std::string& name,
                              const std::string& finding, const std::string& advice)
{
    return {{"severity", severity}, {"kind", kind}, {"name", name}, {"finding", finding}, {"advice", advice}};
}

class NorvctlDoctor : public Norvctl
{
protected:
    // The sample store itself has two things wrong on purpose.
    NorvctlDoctor()
    {
        RemoveAll(LogDevicePath(L"Pr\u00FCfstand"));
        RemoveAll(LogNamePath(L"Altanlage"));
    }

    static nlohmann::json Findings()
    {
        const ProgramEnd end = RunNorvctl({L"--json", L"doctor"});
        const nlohmann::json findings = nlohmann::json::parse(end.output);
        EXPECT_EQ(end.exitCode, findings.empty() ? 0U : 1U);
        EXPECT_EQ(end.error, "");
        return findings;
    }

    // That there is this one and no other.
    static void ExpectOnly(const nlohmann::json& finding)
    {
        EXPECT_EQ(Findings(), nlohmann::json::array({finding}));
    }

    static void ExpectNone() { EXPECT_EQ(Findings(), nlohmann::json::array()); }

    [[nodiscard]] std::wstring ProgramPath(const std::wstring& name) const
    {
        return folder / (L"program-root\\" + name);
    }
};

} // namespace norvepa::test
