#include "norvctl/Nearest.h"

#include <gtest/gtest.h>
#include <ostream>

namespace norvepa::test
{
namespace
{

const std::vector<std::string> Names{"baudrate", "busparam", "station_name",
                                     "ts",       "ttr",      "F\u00F6rderb\u00E4nder"};

struct Slip
{
    const char* name;
    std::string word;
    std::optional<std::string> nearest;
};

void PrintTo(const Slip& slip, std::ostream* stream)
{
    *stream << slip.name;
}

class NorvctlSlip : public testing::TestWithParam<Slip>
{
};

TEST_P(NorvctlSlip, LeadsToTheNearestNameOrToNone)
{
    EXPECT_EQ(norvctl::NearestTo(GetParam().word, Names), GetParam().nearest);
}

INSTANTIATE_TEST_SUITE_P(
    Words, NorvctlSlip,
    testing::Values(Slip{"LeftOut", "baudrat", "baudrate"}, Slip{"PutIn", "baudrrate", "baudrate"},
                    Slip{"Replaced", "baudrata", "baudrate"}, Slip{"Swapped", "buadrate", "baudrate"},
                    Slip{"CaseAlone", "BAUDRATE", "baudrate"},
                    Slip{"Umlaut", "Forderbander", "F\u00F6rderb\u00E4nder"},
                    Slip{"ShortWord", "tt", std::nullopt}, Slip{"OtherWord", "watchdog", std::nullopt},
                    Slip{"Nothing", "", std::nullopt}),
    [](const auto& slip) { return slip.param.name; });

TEST(NorvctlNearest, AsksWhetherTheNearestNameIsMeant)
{
    EXPECT_EQ(norvctl::NoSuch("parameter", "baudrat", Names),
              "no such parameter: baudrat; did you mean baudrate?");
    EXPECT_EQ(norvctl::NoSuch("parameter", "colour", Names), "no such parameter: colour");
}

} // namespace
} // namespace norvepa::test
