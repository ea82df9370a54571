#include "support/Norvctl.h"
#include "support/SampleChange.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

using nlohmann::json;

class NorvctlChoices : public Norvctl
{
};

TEST_F(NorvctlChoices, AreThoseOfTheBoardIfItListsAny)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"choices", L"Presse#3", L"highest_adr"}),
              "15/klein\n31/mittel\n63/gro\u00DF\n");
}

TEST_F(NorvctlChoices, AreThoseOfTheProtocolOtherwise)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"choices", L"Presse#3", L"bus_termination"}),
              "120 \u03A9/verdrillte Leitung\n150 \u03A9/geschirmte Leitung\nohne/Leitungsmitte\n");
}

TEST_F(NorvctlChoices, OfAnAverageAreThoseThatBothList)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"choices", L"Presse#3", L"l4_timeout", L"--average"}),
              "200/200 ms\n2000/2 s\n");
}

TEST_F(NorvctlChoices, OfASpeedFollowTheBusProfileOfAnL2)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"choices", L"Kl\u00E4ranlage", L"baudrate", L"--average"}),
              "187500/187,5 kbit/s\n500000/500 kbit/s\n1500000/1,5 Mbit/s\n");
}

TEST_F(NorvctlChoices, AsJsonAreAnArray)
{
    const json choices = json::parse(
        OutputOfNorvctl({L"--json", L"device", L"choices", L"Abf\u00FCllung Linie 1", L"baudrate"}));

    EXPECT_EQ(choices, (json{{"device", "Abf\u00FCllung Linie 1"},
                             {"parameter", "baudrate"},
                             {"values", {"19200/lange Leitung", "187500/kurze Leitung"}}}));
}

TEST_F(NorvctlChoices, ForAParameterThatNobodyListsAreNoneOrARefusal)
{
    const json choices =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"choices", L"Presse#3", L"gone"}));
    const ProgramEnd average = RunNorvctl({L"device", L"choices", L"Presse#3", L"gone", L"--average"});

    EXPECT_EQ(choices.at("values"), json::array());
    EXPECT_EQ(average.exitCode, 1U);
    EXPECT_EQ(average.output, "");
    EXPECT_EQ(average.error,
              "norvctl: Presse#3, gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
}

TEST_F(NorvctlChoices, OfAMissingLogDeviceFail)
{
    const ProgramEnd end = RunNorvctl({L"device", L"choices", L"gone", L"baudrate"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)\n");
}

// Lists as long as the room that is offered at first, and longer and shorter ones, in characters with the
// values' terminators.
class NorvctlLongChoices : public NorvctlChoices, public testing::WithParamInterface<int>
{
protected:
    // So many characters of values, the last of which takes what is left.
    static std::vector<std::string> ValuesOfLength(int length)
    {
        std::vector<std::string> values;
        for (; length > 200; length -= 101)
        {
            values.push_back(std::string(97, 'x') + std::to_string(100 + values.size()));
        }
        values.emplace_back(static_cast<std::size_t>(length) - 1, 'y');
        return values;
    }
};

TEST_P(NorvctlLongChoices, AreToldWhole)
{
    const std::vector<std::string> values = ValuesOfLength(GetParam());
    std::string elements;
    std::string lines;
    for (const std::string& value : values)
    {
        elements += "<Value>" + value + "</Value>";
        lines += value + "\n";
    }
    ChangeSample(CataloguePath(MpiProtocol),
                 "<Value>120 \u03A9/verdrillte Leitung</Value>\n"
                 "        <Value>150 \u03A9/geschirmte Leitung</Value>\n"
                 "        <Value>ohne/Leitungsmitte</Value>",
                 elements);

    EXPECT_EQ(OutputOfNorvctl({L"device", L"choices", L"Presse#3", L"bus_termination"}), lines);
    EXPECT_EQ(OutputOfNorvctl({L"device", L"choices", L"Presse#3", L"bus_termination", L"--average"}), lines);
}

INSTANTIATE_TEST_SUITE_P(Lengths, NorvctlLongChoices, testing::Values(1022, 1023, 1024, 1025, 9000));

} // namespace
} // namespace norvepa::test
