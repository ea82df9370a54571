#include "support/Norvctl.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

class NorvctlTemplate : public Norvctl
{
};

TEST_F(NorvctlTemplate, ListTellsThemAsDeviceCreateTakesThem)
{
    const json list = json::parse(OutputOfNorvctl({L"--json", L"template", L"list"}));

    EXPECT_THAT(list.get<std::vector<std::string>>(),
                UnorderedElementsAre("L2-AFK110", "L2-AFK220", "MPI-AFK110", "MPI-KQZA010", "SERIAL-ASK040",
                                     "TCPIP-ANK300"));
}

TEST_F(NorvctlTemplate, ListIsALineEach)
{
    const std::string list = OutputOfNorvctl({L"template", L"list"});

    EXPECT_THAT("\n" + list, HasSubstr("\nMPI-KQZA010\n"));
    EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 6);
}

TEST_F(NorvctlTemplate, ListWithoutTheFolderIsEmpty)
{
    locations.Set(L"Corvane_Oam", folder / L"nothing-here");

    EXPECT_EQ(json::parse(OutputOfNorvctl({L"--json", L"template", L"list"})), json::array());
}

} // namespace
} // namespace norvepa::test
