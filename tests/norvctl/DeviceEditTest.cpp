#include "EditScene.h"

#include <fmt/format.h>
#include <fmt/xchar.h>
#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlEditBegin : public NorvctlEdit
{
};

TEST_F(NorvctlEditBegin, PrintsTheNameOfACopy)
{
    const ProgramEnd end = RunNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "PGSP_TEMP_LOG_DEVICE____000\n");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(ReadBytes(LogDevicePath(First)), ReadBytes(LogDevicePath(L"Kesselhaus")));
}

TEST_F(NorvctlEditBegin, AsJsonTellsWhatItIsACopyOf)
{
    const json begun = json::parse(OutputOfNorvctl({L"--json", L"device", L"edit", L"begin", L"Labor"}));

    EXPECT_EQ(begun, (json{{"temporary", "PGSP_TEMP_LOG_DEVICE____000"}, {"device", "Labor"}}));
}

TEST_F(NorvctlEditBegin, MakesOneFromATemplateToo)
{
    const json begun =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"edit", L"begin", L"--from", L"L2-AFK110"}));

    EXPECT_EQ(begun, (json{{"temporary", "PGSP_TEMP_LOG_DEVICE____000"}, {"template", "L2-AFK110"}}));
    EXPECT_EQ(OutputOfNorvctl({L"device", L"ndi", L"get", First, L"DefLogDevice"}), "L2-AFK110\n");
}

TEST_F(NorvctlEditBegin, TakesTheFirstFreeNumber)
{
    OutputOfNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});
    OutputOfNorvctl({L"device", L"edit", L"begin", L"Labor"});
    OutputOfNorvctl({L"device", L"edit", L"discard", First});

    EXPECT_EQ(OutputOfNorvctl({L"device", L"edit", L"list"}), "PGSP_TEMP_LOG_DEVICE____001\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"edit", L"begin", L"Labor"}), "PGSP_TEMP_LOG_DEVICE____000\n");
    EXPECT_EQ(json::parse(OutputOfNorvctl({L"--json", L"device", L"edit", L"list"})),
              (json{"PGSP_TEMP_LOG_DEVICE____000", "PGSP_TEMP_LOG_DEVICE____001"}));
}

TEST_F(NorvctlEditBegin, OfAMissingOneSaysSo)
{
    const ProgramEnd end = RunNorvctl({L"device", L"edit", L"begin", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: gone: no temporary log device could be made "
                         "(8120 PGSP_CANT_CREATE_TEMP_LOG_DEVICE): there is no such log device\n");
}

TEST_F(NorvctlEditBegin, FromAMissingTemplateSaysWhereToLook)
{
    const ProgramEnd end = RunNorvctl({L"device", L"edit", L"begin", L"--from", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("(8120 PGSP_CANT_CREATE_TEMP_LOG_DEVICE): template list tells"));
}

TEST_F(NorvctlEditBegin, WithoutAFreeNumberSaysSo)
{
    for (int number = 0; number < 255; ++number)
    {
        WriteBytes(LogDevicePath(fmt::format(L"PGSP_TEMP_LOG_DEVICE____{:03}", number)), "");
    }

    const ProgramEnd end = RunNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("(8120 PGSP_CANT_CREATE_TEMP_LOG_DEVICE): all numbers are taken"));
    EXPECT_FALSE(Exists(LogDevicePath(L"PGSP_TEMP_LOG_DEVICE____255")));
}

TEST_F(NorvctlEdit, ChangesTheCopyAndNotTheOriginal)
{
    BeginAndChange();

    EXPECT_EQ(Baudrate(First), "187500\n");
    EXPECT_EQ(Baudrate(L"Kesselhaus"), "1500000\n");
}

TEST_F(NorvctlEdit, TellsThatAValueOfTheCopyIsTheSame)
{
    BeginAndChange();

    EXPECT_EQ(OutputOfNorvctl({L"device", L"set", First, L"baudrate", L"187500"}),
              "unchanged PGSP_TEMP_LOG_DEVICE____000, baudrate\n");
}

TEST_F(NorvctlEdit, IsToldToNoWatch)
{
    Watch watch({L"watch", L"LogDevices", L"--count", L"1", L"--timeout", L"3"});

    BeginAndChange();
    OutputOfNorvctl({L"device", L"edit", L"apply", First, L"Kesselhaus"});

    const ProgramEnd end = watch.Finish();
    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
}

} // namespace
} // namespace norvepa::test
