#include "support/Norvctl.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class NorvctlDeviceShow : public Norvctl
{
};

TEST_F(NorvctlDeviceShow, TellsValuesBelowTheirSections)
{
    const std::string output = OutputOfNorvctl({L"device", L"show", L"Presse#3"});

    EXPECT_THAT(output, StartsWith("LogDevice\n"
                                   "  CP_TYPE                      MPI\n"
                                   "  DeviceId                     AFK110\n"
                                   "DeviceHeader\n"
                                   "  Unit                         3\n"));
    EXPECT_THAT(output, Not(HasSubstr("allowed")));
}

TEST_F(NorvctlDeviceShow, TellsSubdevicesByTheNamesThatLeadToThem)
{
    EXPECT_THAT(OutputOfNorvctl({L"device", L"show", L"Etikettierer"}),
                HasSubstr("subdevices\\Drucker B\n"
                          "  address                      2\n"));
    EXPECT_EQ(OutputOfNorvctl({L"device", L"show", L"Etikettierer\\subdevices\\Drucker B"}),
              "subdevices\\Drucker B\n"
              "  address                      2\n"
              "  telegram_end                 CR LF\n"
              "  active                       false\n");
}

TEST_F(NorvctlDeviceShow, TellsLimitsWhereTheyAreAskedFor)
{
    const std::string output = OutputOfNorvctl({L"device", L"show", L"Kesselhaus", L"--limits"});

    EXPECT_THAT(output, ContainsRegex("\n  watchdog +200 +\\* 400 +10 to 30000 in steps of 10\n"));
    EXPECT_THAT(output, ContainsRegex("\n  redundant_master +true   +true +true, false\n"));
    EXPECT_THAT(output, ContainsRegex("\n  Remark +Nachlauf"));
}

TEST_F(NorvctlDeviceShow, TellsTheSameAsJson)
{
    const json shown =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"show", L"Presse#3", L"--limits"}));

    EXPECT_EQ(shown.at("values").at("DeviceId"), "AFK110");
    EXPECT_EQ(shown.at("sections").at(1).at("name"), "DeviceHeader");
    EXPECT_EQ(
        shown.at("sections").at(1).at("values").at(0),
        (json{
            {"name", "Unit"}, {"value", "3"}, {"allowed", "0 to 255"}, {"default", "1"}, {"differs", true}}));
    EXPECT_EQ(shown.at("sections").at(0).at("values").at(0).at("default"), nullptr);
}

TEST_F(NorvctlDeviceShow, OfATemplateTellsSectionsToo)
{
    const json shown = json::parse(OutputOfNorvctl({L"--json", L"template", L"show", L"L2-AFK220"}));

    EXPECT_EQ(shown.at("sections").at(1).at("name"), "DeviceHeader");
    EXPECT_EQ(shown.at("sections").at(1).at("values").at(0).at("name"), "Unit");
    EXPECT_TRUE(shown.at("values").contains("Unit"));
}

TEST_F(NorvctlDeviceShow, HeadsItsColumnsWhereThatIsAskedFor)
{
    EXPECT_THAT(OutputOfNorvctl({L"--headings", L"device", L"show", L"Labor", L"--limits"}),
                ContainsRegex("^PARAMETER +VALUE +DEFAULT +ALLOWED\n"));
}

} // namespace
} // namespace norvepa::test
