#include "support/Norvctl.h"

#include <windows.h>

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;

// As PowerShell hands a line on.
class LineInEnvironment
{
public:
    explicit LineInEnvironment(const wchar_t* line) { SetEnvironmentVariableW(L"NORVCTL_LINE", line); }
    LineInEnvironment(const LineInEnvironment&) = delete;
    LineInEnvironment& operator=(const LineInEnvironment&) = delete;
    ~LineInEnvironment() { SetEnvironmentVariableW(L"NORVCTL_LINE", nullptr); }
};

class NorvctlComplete : public Norvctl
{
protected:
    static ProgramEnd InPowerShell(const wchar_t* line)
    {
        const LineInEnvironment environment(line);
        return RunNorvctl({L"complete", L"powershell"});
    }

    static ProgramEnd InBash(const wchar_t* line)
    {
        return RunNorvctl({L"complete", L"bash", line, L" \t\n\"'@><=;|&(:"});
    }
};

TEST_F(NorvctlComplete, ForPowerShellTellsWhatToPutWhatToShowAndWhatItIs)
{
    const ProgramEnd end = InPowerShell(L"norvctl device show Abf");

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "'Abf\u00FCllung Linie 1'\tAbf\u00FCllung Linie 1\tAbf\u00FCllung Linie 1\n"
                          "'Abf\u00FCllung Linie 2'\tAbf\u00FCllung Linie 2\tAbf\u00FCllung Linie 2\n");
    EXPECT_EQ(end.rawOutput, end.output);
    EXPECT_THAT(InPowerShell(L"norvctl ver").output, HasSubstr("version\tversion\tprint the version"));
}

TEST_F(NorvctlComplete, KnowsTheChoicesOfAParameter)
{
    EXPECT_EQ(InBash(L"norvctl device set Kesselhaus baudrate 93").output, "93750\n");
    EXPECT_EQ(InBash(L"norvctl device busparams 'Presse#3' 15").output, "1500000\n");
}

TEST_F(NorvctlComplete, KnowsTemporaryCopies)
{
    OutputOfNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});

    EXPECT_EQ(InBash(L"norvctl device edit discard ").output, "PGSP_TEMP_LOG_DEVICE____000\n");
}

TEST_F(NorvctlComplete, EndsWithOneWhereAFileOfTheMachineIsMeant)
{
    const ProgramEnd end = InBash(L"norvctl store backup ");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output + end.error, "");
}

TEST_F(NorvctlComplete, IsSilentWhereTheStoreRefuses)
{
    const ProgramEnd end = InBash(L"norvctl device get gone x");

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output + end.error, "");
}

} // namespace
} // namespace norvepa::test
