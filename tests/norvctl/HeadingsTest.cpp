#include "support/Norvctl.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

struct Headed
{
    const char* name;
    Words words;
    const char* headings; // as the first line has them, one blank between two
};

void PrintTo(const Headed& headed, std::ostream* stream)
{
    *stream << headed.name;
}

class NorvctlHeadings : public Norvctl, public testing::WithParamInterface<Headed>
{
};

// With the room that columns take left out.
std::string HeadingsOf(const std::string& output)
{
    std::string headings;
    for (const char character : output.substr(0, output.find('\n')))
    {
        const bool isSecondBlank = character == ' ' && headings.ends_with(' ');
        headings += isSecondBlank ? "" : std::string(1, character);
    }
    return headings;
}

TEST_P(NorvctlHeadings, StandAboveTheListOnlyWhenTheyAreAskedFor)
{
    Words words = GetParam().words;
    const std::string plain = OutputOfNorvctl(words);
    words.insert(words.begin(), L"--headings");

    const std::string headed = OutputOfNorvctl(words);

    EXPECT_EQ(HeadingsOf(headed), GetParam().headings);
    EXPECT_EQ(headed.substr(headed.find('\n') + 1), plain);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, NorvctlHeadings,
    testing::Values(Headed{"Devices", {L"device", L"list"}, "DEVICE PROTOCOL BOARD UNIT"},
                    Headed{"Names", {L"name", L"list"}, "NAME DEVICE PROTOCOL"},
                    Headed{"Boards", {L"board", L"list"}, "BOARD PROTOCOL NAME"},
                    Headed{"Protocols", {L"protocol", L"list"}, "PROTOCOL NAME"},
                    Headed{"Templates", {L"template", L"list"}, "TEMPLATE"},
                    Headed{"Profiles", {L"protocol", L"profiles", L"L2"}, "PROFILE"},
                    Headed{"BaudRates", {L"protocol", L"baudrates", L"MPI"}, "BAUD RATE"},
                    Headed{"Protocol", {L"protocol", L"show", L"MPI"}, "PARAMETER VALUE"},
                    Headed{"Choices", {L"device", L"choices", L"Presse#3", L"baudrate"}, "VALUE"},
                    Headed{"Described", {L"device", L"describe", L"Presse#3", L"watchdog"}, "WORD VALUE"},
                    Headed{"Identity", {L"device", L"ndi", L"list", L"Presse#3"}, "PARAMETER VALUE"},
                    Headed{"Records", {L"device", L"driver-read", L"Presse#3"}, "PARAMETER TYPE VALUE"}),
    [](const auto& headed) { return headed.param.name; });

} // namespace
} // namespace norvepa::test
